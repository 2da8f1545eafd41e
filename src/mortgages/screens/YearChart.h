#pragma once

#include <QtCharts/QChartView>
#include <vector>

#include "mortgages/ScheduleYears.h"
#include "mortgages/ViewSettings.h"

namespace mortgages::screens {

/// A loan by years: its balance, and what was paid of principal and interest.
class YearChart : public QChartView {
    Q_OBJECT

  public:
    explicit YearChart(QWidget* parent = nullptr);

    /// Draws the years anew; none leave the chart as it is.
    void Show(const std::vector<YearPoint>& years, ChartType type, bool legend);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void AddSeries(ChartType type);
    void AddAxes();
    void TakeColors();

    std::vector<YearPoint> years_;
};

} // namespace mortgages::screens
