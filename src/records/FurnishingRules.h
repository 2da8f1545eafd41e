#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace records {

// What is wrong with what a unit is furnished with, a line each.

std::vector<std::string> RoomErrors(std::string_view roomType);
std::vector<std::string> ContentErrors(std::string_view description);
std::vector<std::string> ApplianceErrors(std::int32_t idUnit, std::string_view applianceType);

/// The one method of depreciation that the program offers.
inline constexpr std::string_view kStraightLine = "Straight Line";

} // namespace records
