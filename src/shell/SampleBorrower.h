#pragma once

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

/// One mortgage of the sample portfolio, and what its owner pays on which day.
class SampleBorrower {
  public:
    explicit SampleBorrower(const store::SampleLoan& plan);

    /// Pays what is open, on the days for that. Days are lived in their order, the clock standing
    /// at each.
    void LiveThrough(platform::Date day);
    /// Writes what of the building is the owner's by now.
    void NoteEquity() const;

  private:
    void Pay() const;
    void PlanNextPayment();

    store::SampleLoan plan_;
    /// The next day on which is paid; unset once nothing will be paid any more.
    platform::Date nextPayment_;
};

} // namespace shell
