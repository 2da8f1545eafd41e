#pragma once

#include <cstdint>
#include <vector>

#include "books/PostTransaction.h"
#include "platform/values/Date.h"

namespace shell {

/// The expenses of the sample portfolio's owner for the buildings.
class SampleExpenses {
  public:
    /// Reads buildings and accounts from the process's database.
    SampleExpenses();

    /// Posts the bills that are paid on this day.
    void Pay(platform::Date day) const;

  private:
    std::vector<std::int32_t> buildings_;
    std::vector<books::Party> utilities_;
    std::vector<books::Party> vendors_;
    books::Party bank_;
};

} // namespace shell
