#include "leases/AmountPlan.h"

#include <algorithm>

namespace leases {

using platform::Currency;

namespace {

/// Takes from `left` for a charge, or a credit, of this size; returns what it gets.
Currency TakeFrom(Currency& left, Currency size) {
    const Currency taken = std::min(left, size);
    left -= taken;
    return taken;
}

} // namespace

const AmountStep* AmountPlan::StepOf(std::int32_t idRentLog) const {
    const auto found = std::ranges::find(steps, idRentLog, &AmountStep::idRentLog);
    return found == steps.end() ? nullptr : &*found;
}

AmountPlan PlanAmount(std::span<const PaymentCharge> charges, Currency received) {
    Currency owed;
    Currency credits;
    for (const PaymentCharge& charge : charges) {
        if (!charge.selected) continue;
        (charge.amount > Currency() ? owed : credits) += charge.amount;
    }
    Currency fromCredits = std::clamp(owed - received, Currency(), -credits);
    Currency forCharges = std::min(received + fromCredits, owed);

    AmountPlan plan;
    plan.credit = received + fromCredits - forCharges;
    for (const PaymentCharge& charge : charges) {
        if (!charge.selected) continue;
        const bool isCredit = charge.amount < Currency();
        const Currency settled =
            isCredit ? -TakeFrom(fromCredits, -charge.amount) : TakeFrom(forCharges, charge.amount);
        if (!settled.IsZero())
            plan.steps.push_back({charge.idRentLog, settled, charge.amount - settled});
    }
    return plan;
}

} // namespace leases
