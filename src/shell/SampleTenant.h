#pragma once

#include <cstdint>

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

/// One lease of the sample portfolio, with everything that its tenant does.
class SampleTenant {
  public:
    explicit SampleTenant(const store::SampleHabit& habit);

    /// Does what happens to the lease on this day, which the clock is set to: charges deposits,
    /// pays charges, gives notice. Called for each day in order; on most days nothing happens.
    void LiveThrough(platform::Date day);

  private:
    void Begin();
    void PayOpenCharges();
    void PlanNextPayment(platform::Date day);

    store::SampleHabit habit_;
    /// The next day on which the tenant pays; unset once nothing more will be paid.
    platform::Date nextPayment_;
    /// The day on which the lease is over and its unit is free to be let again.
    platform::Date ends_;
    bool depositPaid_ = false;
};

} // namespace shell
