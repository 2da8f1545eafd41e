#include "core/References.h"

#include <charconv>
#include <exception>

#include "core/Globals.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Desktop.h"
#include "platform/values/Text.h"

namespace core {

namespace {

constexpr std::string_view kAccountTag = "<<taxaccount>>";

std::string ReplaceAccountTag(std::string_view url, std::string_view account) {
    std::string result;
    while (!url.empty()) {
        if (platform::EqualIgnoringCase(url.substr(0, kAccountTag.size()), kAccountTag)) {
            result += account;
            url.remove_prefix(kAccountTag.size());
        } else {
            result += url.front();
            url.remove_prefix(1);
        }
    }
    return result;
}

void OpenReferences(platform::Connection& references) {
    references.Open(App().AppPath + "References.mdb", platform::OpenMode::ReadOnly);
}

/// Returns the number of a zip code of digits only: "90210-1234" would otherwise be calculated into
/// the code of another place.
std::optional<std::int32_t> ZipNumber(std::string_view zip) {
    const auto text = platform::Trim(zip);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0) {
        return std::nullopt;
    }
    return number;
}

} // namespace

std::string FindTaxUrl(std::string_view account, std::string_view county, std::string_view state) {
    if (!App().HasReferences) return {};
    const bool isAbbreviation = platform::Trim(state).size() == 2;
    try {
        platform::Connection references;
        OpenReferences(references);
        const auto url = references.Scalar(
            isAbbreviation ? "SELECT URL FROM TaxURL WHERE County = ? AND StateAbbr = ?"
                           : "SELECT URL FROM TaxURL WHERE County = ? AND State = ?",
            {county, state});
        return url && !url->IsNull() ? ReplaceAccountTag(url->AsText(), account) : std::string();
    } catch (const std::exception&) {
        return {};
    }
}

void GetTaxUrl(std::string_view account, std::string_view county, std::string_view state) {
    const std::string url = FindTaxUrl(account, county, state);
    if (!url.empty()) platform::TheDesktop().OpenWebPage(url);
}

std::optional<ZipPlace> ZipLookup(std::string_view zip) {
    const auto number = ZipNumber(zip);
    if (!App().HasReferences || !number) return std::nullopt;
    try {
        platform::Connection references;
        OpenReferences(references);
        platform::Recordset rows;
        rows.Open(references, "SELECT * FROM ZipCodes WHERE Zip = ?",
                  platform::CursorMode::ReadOnly, {*number});
        if (rows.Eof()) return std::nullopt;
        return ZipPlace{TextOf(rows["City"]), TextOf(rows["State"]), TextOf(rows["County"])};
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace core
