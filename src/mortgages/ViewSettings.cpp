#include "mortgages/ViewSettings.h"

#include "core/Settings.h"

namespace mortgages {

namespace {

constexpr std::string_view kKey = R"(SOFTWARE\Vestrel\Kestrom\Mortgage)";
constexpr std::string_view kDetail = "ViewAmortDetail";
constexpr std::string_view kYearToDate = "ViewAmortYTD";
constexpr std::string_view kCumulative = "ViewAmortCumulative";
constexpr std::string_view kLegend = "ViewChartLegend";
constexpr std::string_view kChartType = "ViewChartType";

} // namespace

ViewSettings LoadViewSettings() {
    ViewSettings settings;
    settings.detail = core::GetRegFlag(kKey, kDetail, settings.detail);
    settings.yearToDate = core::GetRegFlag(kKey, kYearToDate, settings.yearToDate);
    settings.cumulative = core::GetRegFlag(kKey, kCumulative, settings.cumulative);
    settings.legend = core::GetRegFlag(kKey, kLegend, settings.legend);
    const auto type = core::GetRegNumber(kKey, kChartType, 0);
    if (type == 1 || type == 2) settings.chart = ChartType{type};
    return settings;
}

void SaveViewSettings(const ViewSettings& settings) {
    core::SetRegFlag(kKey, kDetail, settings.detail);
    core::SetRegFlag(kKey, kYearToDate, settings.yearToDate);
    core::SetRegFlag(kKey, kCumulative, settings.cumulative);
    core::SetRegFlag(kKey, kLegend, settings.legend);
    core::SetRegNumber(kKey, kChartType, static_cast<int>(settings.chart));
}

} // namespace mortgages
