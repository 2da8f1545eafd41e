#include "mortgages/screens/YearChart.h"

#include <array>

#include "platform/qt/Text.h"

namespace mortgages::screens {

using platform::qt::ChartShape;
using platform::qt::ToScreen;

namespace {

constexpr std::array<double YearPoint::*, 3> kValues = {&YearPoint::balance, &YearPoint::principal,
                                                        &YearPoint::interest};

ChartShape ShapeOf(ChartType type) {
    switch (type) {
        case ChartType::Bars:
            return ChartShape::Bars;
        case ChartType::Areas:
            return ChartShape::Areas;
        case ChartType::Lines:
            break;
    }
    return ChartShape::Lines;
}

} // namespace

YearChart::YearChart(QWidget* parent) : SeriesChart(parent) {
    setObjectName(QStringLiteral("chtYears"));
    setAccessibleName(tr("The loan by years"));
}

void YearChart::Show(const std::vector<YearPoint>& years, ChartType type, bool legend) {
    QStringList labels;
    std::vector<platform::qt::ChartSeries> series;
    for (std::size_t i = 0; i < kValues.size(); ++i)
        series.push_back({ToScreen(kYearSeries[i]), {}});
    for (const YearPoint& year : years) {
        labels << ToScreen(year.label);
        for (std::size_t i = 0; i < kValues.size(); ++i)
            series[i].values.push_back(year.*kValues[i]);
    }
    SeriesChart::Show(labels, std::move(series), ShapeOf(type), platform::qt::ChartDepth::Flat,
                      legend);
}

} // namespace mortgages::screens
