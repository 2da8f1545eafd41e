#include "records/FurnishingRules.h"

#include "platform/values/Text.h"

namespace records {

using platform::Trim;

std::vector<std::string> RoomErrors(std::string_view roomType) {
    if (Trim(roomType).empty()) return {"A room type must be specified."};
    return {};
}

std::vector<std::string> ContentErrors(std::string_view description) {
    if (Trim(description).empty()) return {"A description must be entered."};
    return {};
}

std::vector<std::string> ApplianceErrors(std::int32_t idUnit, std::string_view applianceType) {
    std::vector<std::string> lines;
    if (idUnit == 0) lines.emplace_back("No Building / Unit has been selected.");
    if (Trim(applianceType).empty()) lines.emplace_back("An appliance type must be specified.");
    return lines;
}

} // namespace records
