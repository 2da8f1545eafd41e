#include "vestrelctl/Words.h"

#include <fmt/core.h>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "platform/values/Date.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace vestrelctl {

CLI::Validator IsDay() {
    return {[](const std::string& text) {
                if (platform::Date::TryParse(text)) return std::string();
                return "'" + text + "' is no day of the form mm/dd/yyyy";
            },
            "", ""};
}

std::string NameOf(std::int16_t kind, std::int32_t id) {
    const std::string name = core::GetDescription(kind, id);
    if (name.empty()) {
        throw platform::Error(
            fmt::format("There is no {} {}", platform::ToLower(core::RecordKindName(kind)), id));
    }
    return name;
}

} // namespace vestrelctl
