#include "exchange/FinExportSettings.h"

#include "core/StoredSettings.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"

namespace exchange {

namespace {

constexpr std::string_view kKey = R"(SOFTWARE\Vestrel\Kestrom\FinExport)";

using S = FinExportSettings;
constexpr core::StoredMember<S> kMembers[] = {
    core::StoredChoice<&S::finType, FinType::Iif>("FinType"),
    core::Stored<&S::markExported>("MarkExported"),
    core::Stored<&S::showCount>("ShowCount"),
    core::Stored<&S::limitLength>("LimitLength"),
    core::Stored<&S::sortedColumn>("SortedColumn"),
};
constexpr core::StoredMember<ExportRange> kRange[] = {
    core::StoredChoice<&ExportRange::range, TransRange::DateRange>("TransRange"),
};

platform::Date ReadDay(std::string_view name, platform::Date otherwise) {
    return platform::Date::TryParse(core::GetRegString(kKey, name, "")).value_or(otherwise);
}

} // namespace

FinExportSettings LoadFinExportSettings() {
    const platform::Date today = platform::Today();
    FinExportSettings settings;
    core::LoadSettings(kKey, kMembers, settings);
    core::LoadSettings(kKey, kRange, settings.range);
    settings.range.start =
        ReadDay("TransStart", platform::DateAdd(platform::Interval::Month, -1, today));
    settings.range.end = ReadDay("TransEnd", today);
    settings.sortDescending = core::GetRegNumber(kKey, "SortOrder", 0) != 0;
    settings.lastFileName =
        core::GetRegString(kKey, "LastFileName", (platform::HomeFolder() / "export").string());
    return settings;
}

void SaveFinExportSettings(const FinExportSettings& settings) {
    core::SaveSettings(kKey, kMembers, settings);
    core::SaveSettings(kKey, kRange, settings.range);
    core::SetRegString(kKey, "TransStart", settings.range.start.ToText());
    core::SetRegString(kKey, "TransEnd", settings.range.end.ToText());
    core::SetRegNumber(kKey, "SortOrder", settings.sortDescending ? 1 : 0);
}

void SaveLastFileName(const std::string& path) {
    core::SetRegString(kKey, "LastFileName", path);
}

} // namespace exchange
