#include "vestrelctl/Words.h"

#include <iostream>

#include <fmt/core.h>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "platform/values/Conversions.h"
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

void PrintPaid(std::int32_t idTransaction, std::size_t charges, platform::Currency amount) {
    std::cout << fmt::format("Transaction {}: {} {}, {}\n", idTransaction, charges,
                             charges == 1 ? "charge" : "charges",
                             platform::MoneyToFixedText(amount));
}

} // namespace vestrelctl
