#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "leases/LeaseWalk.h"

namespace leases {

/// How the run reports a payment from credit, by which no money comes in.
inline constexpr std::string_view kPaidFromCredit = "Paid from credit";

/// The ids of the rows that were written for a walk, in the order of its charges and payments. For
/// a charge that was split, it is the id of the settled part.
struct WalkIds {
    std::vector<std::int32_t> charges;
    std::vector<std::int32_t> payments;
};

/// Writes the charges of a walk day by day. The payments from credit follow the charges of their
/// day: each is a transaction of 0.00, since no money moves, that settles charge and credit. A
/// charge or a credit that is used in part is split; the rest of a period's rent stays the period's
/// rent. `credits` are those that the walk was given. The lease's row is left to the caller.
/// Failures are thrown.
WalkIds WriteSettledWalk(std::int32_t idLease, const LeaseWalk& walk,
                         std::span<const OpenCredit> credits);

} // namespace leases
