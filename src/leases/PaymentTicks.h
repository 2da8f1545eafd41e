#pragma once

#include <array>
#include <cstdint>
#include <map>

#include "leases/RentPayment.h"

namespace leases {

/// The user's ticks on a payment screen, preserved while its charges are read again: reading ticks
/// every open charge of a new payment, whatever the user had chosen.
class PaymentTicks {
  public:
    /// Remembers the present ticks.
    void Keep(const RentPayment& payment);
    /// Follows the split of a charge: its tick goes to the first part, and the deferred second part
    /// isn't ticked.
    void Split(std::int32_t idRentLog, const std::array<std::int32_t, 2>& parts);

    /// Returns true if the payment's ticks differ from the remembered ones.
    bool DifferFrom(const RentPayment& payment) const;
    /// Restores the remembered ticks; a charge that is new since then stays as it is.
    void Restore(RentPayment& payment) const;

  private:
    /// Keyed by IdRentLog. Deleted charges stay, so that a split can look them up.
    std::map<std::int32_t, bool> ticks_;
};

} // namespace leases
