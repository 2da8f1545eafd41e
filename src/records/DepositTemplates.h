#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"

namespace records {

// Deposit templates: the deposits charged to every new lease, or to the leases of a building or a
// unit.

/// The leases that a template applies to; All lists the templates of every scope.
enum class DepositScope { All, Global, Building, Unit };

/// The building and unit whose templates are listed; 0 for one that isn't saved yet.
struct DepositPlace {
    std::int32_t idBuilding = 0;
    std::int32_t idUnit = 0;
};

/// A template as entered on its screen.
struct DepositEntry {
    DepositScope scope = DepositScope::Global;
    std::int32_t idBuilding = 0;
    std::int32_t idUnit = 0;
    std::string description;
};

/// Returns the errors in the entries, a line each; empty if they can be saved.
std::vector<std::string> DepositErrors(const DepositEntry& entry);

/// Returns the scope of a stored template.
DepositScope ScopeOf(std::int32_t idBuilding, std::int32_t idUnit);

/// Returns the templates of a scope, sorted by description: id, description, scope, amount. The row
/// set isn't open if the read fails.
platform::Recordset OpenDeposits(DepositScope scope, const DepositPlace& place);

/// Deletes a template and broadcasts the change, after asking if ConfirmDelete is on. Returns false
/// if the user declines. Throws on failure.
bool DeleteDeposit(std::int32_t idDeposit);

} // namespace records
