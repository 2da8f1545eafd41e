#pragma once

#include <cstdint>

namespace leases {

/// Charges a new lease with every deposit template that applies to its unit: the templates for all
/// leases, for the unit's building and for the unit. Dated today. One unit of work. Throws on
/// failure.
void ChargeDeposits(std::int32_t idLease, std::int32_t idUnit);

} // namespace leases
