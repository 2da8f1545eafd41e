#pragma once

#include <vector>

#include "mortgages/ScheduleYears.h"
#include "mortgages/ViewSettings.h"
#include "platform/qt/charts/SeriesChart.h"

namespace mortgages::screens {

/// A loan by years: its balance, and what was paid of principal and interest.
class YearChart : public platform::qt::SeriesChart {
    Q_OBJECT

  public:
    explicit YearChart(QWidget* parent = nullptr);

    /// Draws the years in place of those before; none leave the chart as it is.
    void Show(const std::vector<YearPoint>& years, ChartType type, bool legend);
};

} // namespace mortgages::screens
