#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace records {

/// The choices for a manager's fee, separated by commas; a new manager starts with the first.
inline constexpr std::string_view kFeeTypes = "Fixed,Percentage";
inline constexpr std::string_view kTermTypes = "Month(s),Year(s)";

/// A manager of a building as entered on the manager screen.
struct ManagerEntry {
    std::int32_t idManagerLink = 0; ///< 0 for a new one
    std::int32_t idBuilding = 0;
    std::int32_t idAccount = 0;
};

/// Returns the errors in the entries, a line each; empty if they can be saved.
std::vector<std::string> ManagerErrors(const ManagerEntry& entry);

} // namespace records
