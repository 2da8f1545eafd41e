#include "leases/PaymentTicks.h"

#include <algorithm>

namespace leases {

void PaymentTicks::Keep(const RentPayment& payment) {
    for (const PaymentCharge& charge : payment.charges)
        ticks_.insert_or_assign(charge.idRentLog, charge.selected);
}

void PaymentTicks::Split(std::int32_t idRentLog, const std::array<std::int32_t, 2>& parts) {
    const auto whole = ticks_.find(idRentLog);
    ticks_.insert_or_assign(parts[0], whole == ticks_.end() || whole->second);
    ticks_.insert_or_assign(parts[1], false);
}

bool PaymentTicks::DifferFrom(const RentPayment& payment) const {
    return std::ranges::any_of(payment.charges, [this](const PaymentCharge& charge) {
        const auto kept = ticks_.find(charge.idRentLog);
        return kept != ticks_.end() && kept->second != charge.selected;
    });
}

void PaymentTicks::Restore(RentPayment& payment) const {
    for (PaymentCharge& charge : payment.charges) {
        const auto kept = ticks_.find(charge.idRentLog);
        if (kept != ticks_.end()) charge.selected = kept->second;
    }
}

} // namespace leases
