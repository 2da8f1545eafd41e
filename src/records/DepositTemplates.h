#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"

namespace records {

// Deposit templates: what every new lease is charged, or one of a building, or one of a unit.

/// Which leases a template is for; All stands for any of them, in a list.
enum class DepositScope { All, Global, Building, Unit };

/// The building and unit whose templates are listed; 0 for one that isn't saved.
struct DepositPlace {
    std::int32_t idBuilding = 0;
    std::int32_t idUnit = 0;
};

/// A template as its screen holds it.
struct DepositEntry {
    DepositScope scope = DepositScope::Global;
    std::int32_t idBuilding = 0;
    std::int32_t idUnit = 0;
    std::string description;
};

/// What is wrong with it, a line each.
std::vector<std::string> DepositErrors(const DepositEntry& entry);

/// Whom a stored template is for.
DepositScope ScopeOf(std::int32_t idBuilding, std::int32_t idUnit);

/// The templates of a scope by their description: id, description, the scope's word, amount. They
/// aren't open when that fails.
platform::Recordset OpenDeposits(DepositScope scope, const DepositPlace& place);

/// Deletes a template after asking, if the person is to be asked, and tells the screens; false when
/// the answer is No. Failures are thrown.
bool DeleteDeposit(std::int32_t idDeposit);

} // namespace records
