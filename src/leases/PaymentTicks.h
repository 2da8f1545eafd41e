#pragma once

#include <array>
#include <cstdint>
#include <map>

#include "leases/RentPayment.h"

namespace leases {

/// The user's ticks on a payment screen, kept while its charges are read again: that ticks every
/// open charge of a new payment, whatever the user had chosen.
class PaymentTicks {
  public:
    /// Keeps the ticks as they are now.
    void Keep(const RentPayment& payment);
    /// A kept charge was split: its tick goes to the first part, and the second, the deferred one,
    /// is not ticked.
    void Split(std::int32_t idRentLog, const std::array<std::int32_t, 2>& parts);

    /// True if the payment's ticks are not the ones kept.
    bool DifferFrom(const RentPayment& payment) const;
    /// Puts the kept ticks back; a charge that wasn't there when they were kept stays as it is.
    void Restore(RentPayment& payment) const;

  private:
    /// By IdRentLog. Charges that were deleted stay, so that a split can ask for them.
    std::map<std::int32_t, bool> ticks_;
};

} // namespace leases
