#pragma once

#include <cstdint>

namespace leases {

/// Charges a new lease with every deposit template that applies to its unit: the global ones, those
/// of the unit's building and those of the unit. Dated today; one unit of work; failures are
/// thrown.
void ChargeDeposits(std::int32_t idLease, std::int32_t idUnit);

} // namespace leases
