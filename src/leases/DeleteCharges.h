#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace leases {

/// Whether the list showed the rows to be deleted as open.
enum class ShownAs { Open, OpenOrSettled };

/// Deletes rows of a lease's ledger after a question that names them: `question` for several rows,
/// the usual question of its kind for one. The rows and the lease's balances are written in one
/// unit of work, and the change is broadcast. Returns true if they were deleted. Throws
/// ConflictError, and deletes nothing, if a row shown as open has been paid since.
bool DeleteCharges(std::int32_t idLease, const std::vector<std::int32_t>& ids,
                   std::string_view question, ShownAs shown);

} // namespace leases
