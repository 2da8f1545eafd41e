#include "core/BooksSettings.h"

#include <string>
#include <string_view>
#include <system_error>

#include "core/Globals.h"
#include "core/Rows.h"
#include "core/Session.h"

namespace core {

using platform::Date;

namespace {

constexpr std::string_view kKeptSince = "KeptSince";
constexpr std::string_view kSample = "Sample";

std::string ReadSetting(std::string_view name) {
    if (!TableExists("BooksSetting")) return {};
    const platform::Value content =
        ReadValue("SELECT Content FROM BooksSetting WHERE Name = ?", {name});
    return content.IsNull() ? std::string() : content.AsText();
}

void WriteSetting(std::string_view name, const std::string& content) {
    platform::UnitOfWork unit(App().Connection);
    Execute("DELETE * FROM BooksSetting WHERE Name = ?", {name});
    if (!content.empty())
        Execute("INSERT INTO BooksSetting (Name, Content) VALUES (?, ?)", {name, content});
    unit.Commit();
}

/// Returns one spelling of a folder, without a separator at its end.
std::filesystem::path OneSpelling(const std::filesystem::path& folder) {
    std::error_code ignored;
    return std::filesystem::weakly_canonical(folder / ".", ignored);
}

} // namespace

Date BooksKeptSince() {
    return Date::TryParse(ReadSetting(kKeptSince)).value_or(Date());
}

void SetBooksKeptSince(Date day) {
    WriteSetting(kKeptSince, day.IsSet() ? day.ToText() : std::string());
}

bool IsSample() {
    const std::string folder = ReadSetting(kSample);
    return !folder.empty() && OneSpelling(folder) == OneSpelling(App().DbPath);
}

void MarkAsSample(const std::filesystem::path& folder) {
    WriteSetting(kSample, OneSpelling(folder).string());
}

} // namespace core
