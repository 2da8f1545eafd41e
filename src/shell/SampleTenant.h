#pragma once

#include <cstdint>

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

/// One lease of the sample portfolio, and what its tenant does on which day.
class SampleTenant {
  public:
    explicit SampleTenant(const store::SampleHabit& habit);

    /// What happens to the lease on this day, which the clock stands at: deposits are charged,
    /// charges paid, notice given. Days are lived in their order; most pass without anything.
    void LiveThrough(platform::Date day);

  private:
    void Begin();
    void PayOpenCharges();
    void PlanNextPayment(platform::Date day);

    store::SampleHabit habit_;
    /// The next day on which the tenant pays; unset once nothing will be paid any more.
    platform::Date nextPayment_;
    bool depositPaid_ = false;
};

} // namespace shell
