#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace leases {

/// Removes rows of a lease's ledger: one as any record is removed, several after `question` is
/// agreed to, as one unit of work. The lease's balances follow, and the screens are told. True when
/// they were removed; failures are thrown.
bool DeleteCharges(std::int32_t idLease, const std::vector<std::int32_t>& ids,
                   std::string_view question);

} // namespace leases
