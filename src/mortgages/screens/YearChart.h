#pragma once

#include <vector>

#include "mortgages/ScheduleYears.h"
#include "mortgages/ViewSettings.h"
#include "platform/qt/charts/SeriesChart.h"

namespace mortgages::screens {

/// A loan by years: its balance, and the principal and interest paid.
class YearChart : public platform::qt::SeriesChart {
    Q_OBJECT

  public:
    explicit YearChart(QWidget* parent = nullptr);

    /// Draws these years; the chart stays as it is if there are none.
    void Show(const std::vector<YearPoint>& years, ChartType type, bool legend);
};

} // namespace mortgages::screens
