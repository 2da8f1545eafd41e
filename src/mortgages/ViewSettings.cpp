#include "mortgages/ViewSettings.h"

#include "core/StoredSettings.h"

namespace mortgages {

namespace {

constexpr std::string_view kKey = R"(SOFTWARE\Vestrel\Kestrom\Mortgage)";

constexpr core::StoredMember<ViewSettings> kMembers[] = {
    core::Stored<&ViewSettings::detail>("ViewAmortDetail"),
    core::Stored<&ViewSettings::yearToDate>("ViewAmortYTD"),
    core::Stored<&ViewSettings::cumulative>("ViewAmortCumulative"),
    core::Stored<&ViewSettings::legend>("ViewChartLegend"),
    core::StoredChoice<&ViewSettings::chart, ChartType::Areas>("ViewChartType"),
};

} // namespace

ViewSettings LoadViewSettings() {
    ViewSettings settings;
    core::LoadSettings(kKey, kMembers, settings);
    return settings;
}

void SaveViewSettings(const ViewSettings& settings) {
    core::SaveSettings(kKey, kMembers, settings);
}

} // namespace mortgages
