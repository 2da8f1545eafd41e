#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/values/Date.h"
#include "store/SamplePortfolio.h"

namespace shell {

/// The sample's payments of other amounts than the charges: one tenant pays months ahead on a lease
/// that settles its charges from the credit, one payment of another is returned by the bank and
/// paid again, and a third tenant pays too much.
class SampleCredits {
  public:
    SampleCredits(std::span<const store::SampleHabit> habits, platform::Date today);

    /// Does what happens on this day, which the clock is set to. Called for each day in order,
    /// after everything the tenants do on it; on most days nothing happens.
    void LiveThrough(platform::Date day);

  private:
    std::optional<std::int32_t> Choose(store::PayHabit habit);
    void PayAhead();
    void ReturnLastPayment();
    void PayAgain() const;
    void PayTooMuch();

    std::vector<store::SampleHabit> habits_;
    platform::Date today_;
    /// The lease whose payment was returned, until it is paid again.
    std::optional<std::int32_t> returned_;
};

} // namespace shell
