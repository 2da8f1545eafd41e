#include "records/TenantRules.h"

#include "platform/values/Text.h"

namespace records {

std::vector<std::string> TenantErrors(std::string_view lastName) {
    if (platform::Trim(lastName).empty()) return {"A last name must be entered."};
    return {};
}

std::vector<std::string> IncidentErrors(std::string_view description) {
    if (platform::Trim(description).empty()) return {"A description must be entered."};
    return {};
}

} // namespace records
