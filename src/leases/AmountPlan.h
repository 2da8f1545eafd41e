#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "leases/RentPayment.h"
#include "platform/values/Currency.h"

namespace leases {

/// One charge that an amount settles, or one credit that is used with it, whole or in part. Both
/// amounts have the sign of the row.
struct AmountStep {
    std::int32_t idRentLog = 0;
    platform::Currency settled;
    /// The part that is split off and stays open; zero if the whole row is settled.
    platform::Currency rest;

    bool IsPart() const { return !rest.IsZero(); }
    friend bool operator==(const AmountStep&, const AmountStep&) = default;
};

/// How an amount that came in is spread over charges.
struct AmountPlan {
    /// In the order of the charges; a charge that gets nothing is left out. At most one step
    /// settles only a part.
    std::vector<AmountStep> steps;
    /// The surplus, which becomes a credit of the tenant.
    platform::Currency credit;

    /// Returns the step of a charge; null if it gets nothing.
    const AmountStep* StepOf(std::int32_t idRentLog) const;
};

/// Spreads `received`, which is positive, over the selected charges in their order. If the amount
/// isn't enough, the selected credits are used too, in their order; credits that aren't needed stay
/// open.
AmountPlan PlanAmount(std::span<const PaymentCharge> charges, platform::Currency received);

} // namespace leases
