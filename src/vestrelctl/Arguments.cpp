#include "vestrelctl/Arguments.h"

#include <iostream>

#include <fmt/core.h>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "platform/values/Conversions.h"
#include "platform/values/Csv.h"
#include "platform/values/Date.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace vestrelctl {

namespace {

std::string NameOf(std::string_view option, core::RecordKind kind, std::int32_t id) {
    const std::string name = core::GetDescription(kind, id);
    if (name.empty()) {
        throw platform::Error(fmt::format("{}: there is no {} {}", option,
                                          platform::ToLower(core::RecordKindName(kind)), id));
    }
    return name;
}

bool IsNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

core::RecordKind KindOfParty(std::string_view word) {
    if (word == "account") return core::kAccount;
    if (word == "tenant") return core::kTenant;
    return core::kNone;
}

} // namespace

CLI::Validator IsDate() {
    return {[](const std::string& text) {
                if (platform::Date::TryParse(text)) return std::string();
                return "'" + text + "' is not a valid date (mm/dd/yyyy)";
            },
            "", ""};
}

CLI::Validator IsValue() {
    return {[](const std::string& text) {
                if (!text.starts_with("--")) return std::string();
                return "a value is missing before " + text;
            },
            "", ""};
}

CLI::Validator IsId() {
    return {[](const std::string& text) {
                if (IsNumber(text)) return std::string();
                return "'" + text + "' is not the number of a record";
            },
            "", ""};
}

books::Party ReadParty(std::string_view option, const std::string& text) {
    const auto colon = text.find(':');
    const std::string form = text.substr(0, colon);
    const std::string who = colon == std::string::npos ? std::string() : text.substr(colon + 1);
    if (form == "name" && !platform::Trim(who).empty()) return {core::kAccount, 0, who};
    const core::RecordKind kind = KindOfParty(form);
    if (kind == core::kNone || !IsNumber(who)) {
        throw platform::Error(
            fmt::format("{}: '{}' is not account:ID, tenant:ID or name:TEXT", option, text));
    }
    const std::int32_t id = platform::StrToInt32(who);
    return {kind, id, NameOf(option, kind, id)};
}

platform::Currency ReadAmount(std::string_view option, const std::string& text) {
    const auto amount = platform::TryParseMoney(text);
    if (!amount) throw platform::Error(fmt::format("{}: '{}' is not an amount", option, text));
    return *amount;
}

std::string AccountName(std::string_view option, std::int32_t id) {
    return NameOf(option, core::kAccount, id);
}

void PrintPreview(const leases::PreviewRows& rows) {
    std::cout << "\"What\",\"Date\",\"Category\",\"Description\",\"Amount\"\n";
    for (const leases::PreviewRow& row : rows) {
        std::cout << fmt::format("{},{},{},{},{}\n", platform::CsvText(row.what),
                                 platform::CsvText(row.date.ToText()),
                                 platform::CsvText(row.category),
                                 platform::CsvText(row.description), platform::CsvCell(row.amount));
    }
}

void PrintPaid(std::int32_t idTransaction, std::size_t charges, platform::Currency amount) {
    std::cout << fmt::format("Transaction {}: {} {}, {}\n", idTransaction, charges,
                             charges == 1 ? "charge" : "charges",
                             platform::MoneyToFixedText(amount));
}

} // namespace vestrelctl
