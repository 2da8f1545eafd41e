#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace records {

/// The words that a manager's terms are chosen from, parted by commas; the first is a new one's.
inline constexpr std::string_view kFeeTypes = "Fixed,Percentage";
inline constexpr std::string_view kTermTypes = "Month(s),Year(s)";

/// What the manager screen holds of one manager of a building.
struct ManagerEntry {
    std::int32_t idManagerLink = 0; ///< 0 for a new one
    std::int32_t idBuilding = 0;
    std::int32_t idAccount = 0;
};

/// What is wrong with it, a line each.
std::vector<std::string> ManagerErrors(const ManagerEntry& entry);

} // namespace records
