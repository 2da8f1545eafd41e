#include "exchange/FinExportSettings.h"

#include "core/Settings.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"

namespace exchange {

namespace {

constexpr std::string_view kKey = R"(SOFTWARE\Vestrel\Kestrom\FinExport)";
constexpr std::int32_t kLastChoice = 2; // of both enumerations

std::int32_t ReadChoice(std::string_view name) {
    const std::int32_t choice = core::GetRegNumber(kKey, name, 0);
    return choice < 0 || choice > kLastChoice ? 0 : choice;
}

platform::Date ReadDay(std::string_view name, platform::Date otherwise) {
    return platform::Date::TryParse(core::GetRegString(kKey, name, "")).value_or(otherwise);
}

} // namespace

FinExportSettings LoadFinExportSettings() {
    const platform::Date today = platform::Today();
    FinExportSettings settings;
    settings.finType = static_cast<FinType>(ReadChoice("FinType"));
    settings.range.range = static_cast<TransRange>(ReadChoice("TransRange"));
    settings.range.start =
        ReadDay("TransStart", platform::DateAdd(platform::Interval::Month, -1, today));
    settings.range.end = ReadDay("TransEnd", today);
    settings.markExported = core::GetRegFlag(kKey, "MarkExported", false);
    settings.showCount = core::GetRegFlag(kKey, "ShowCount", false);
    settings.limitLength = core::GetRegFlag(kKey, "LimitLength", false);
    settings.sortedColumn = core::GetRegNumber(kKey, "SortedColumn", 0);
    settings.sortDescending = core::GetRegNumber(kKey, "SortOrder", 0) != 0;
    settings.lastFileName =
        core::GetRegString(kKey, "LastFileName", (platform::HomeFolder() / "export").string());
    return settings;
}

void SaveFinExportSettings(const FinExportSettings& settings) {
    core::SetRegNumber(kKey, "FinType", static_cast<std::int32_t>(settings.finType));
    core::SetRegNumber(kKey, "TransRange", static_cast<std::int32_t>(settings.range.range));
    core::SetRegString(kKey, "TransStart", settings.range.start.ToText());
    core::SetRegString(kKey, "TransEnd", settings.range.end.ToText());
    core::SetRegFlag(kKey, "MarkExported", settings.markExported);
    core::SetRegFlag(kKey, "ShowCount", settings.showCount);
    core::SetRegFlag(kKey, "LimitLength", settings.limitLength);
    core::SetRegNumber(kKey, "SortedColumn", settings.sortedColumn);
    core::SetRegNumber(kKey, "SortOrder", settings.sortDescending ? 1 : 0);
}

void SaveLastFileName(const std::string& path) {
    core::SetRegString(kKey, "LastFileName", path);
}

} // namespace exchange
