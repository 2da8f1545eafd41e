#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace records {

// Returns the errors in the rooms, contents and appliances of a unit, a line each; empty if they
// can be saved.

std::vector<std::string> RoomErrors(std::string_view roomType);
std::vector<std::string> ContentErrors(std::string_view description);
std::vector<std::string> ApplianceErrors(std::int32_t idUnit, std::string_view applianceType);

/// The only depreciation method on offer.
inline constexpr std::string_view kStraightLine = "Straight Line";

} // namespace records
