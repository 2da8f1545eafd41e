#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace leases {

/// How the list showed the rows that are to be deleted.
enum class ShownAs { Open, OpenOrSettled };

/// Deletes rows of a lease's ledger after a question that names them: for several rows `question`,
/// for one the question of every record. One unit of work. The lease's balances follow, and the
/// screens are told. Returns true if they were deleted. Throws ConflictError, and deletes nothing,
/// if a row shown as open has been paid since.
bool DeleteCharges(std::int32_t idLease, const std::vector<std::int32_t>& ids,
                   std::string_view question, ShownAs shown);

} // namespace leases
