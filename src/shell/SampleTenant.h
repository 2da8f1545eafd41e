#pragma once

#include <cstdint>

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

/// One lease of the sample portfolio, with its tenant's doings.
class SampleTenant {
  public:
    explicit SampleTenant(const store::SampleHabit& habit);

    /// Does what happens to the lease on this day, which the clock is set to: charges deposits,
    /// pays charges, gives notice. To be called for each day in order; nothing happens on most.
    void LiveThrough(platform::Date day);

  private:
    void Begin();
    void PayOpenCharges();
    void PlanNextPayment(platform::Date day);

    store::SampleHabit habit_;
    /// Returns the next day on which the tenant pays; unset once nothing more will be paid.
    platform::Date nextPayment_;
    /// The day on which the lease is over: its unit is free from then on, whoever lets it next.
    platform::Date ends_;
    bool depositPaid_ = false;
};

} // namespace shell
