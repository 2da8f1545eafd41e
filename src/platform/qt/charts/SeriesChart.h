#pragma once

#include <QtCharts/QChartView>
#include <cstdint>
#include <vector>

namespace platform::qt {

/// How values are drawn above their labels. Combo draws the first series as bars and the others as
/// lines; a single series is drawn as bars with a line over them.
enum class ChartShape : std::uint8_t { Bars, Lines, Areas, Steps, Combo };
/// Raised shapes are shaded, so that they stand out from the page.
enum class ChartDepth : std::uint8_t { Flat, Raised };

struct ChartSeries {
    QString name;
    std::vector<double> values; ///< one for each label
};

/// A read-only chart of money over time, in the colours of the palette.
class SeriesChart : public QChartView {
    Q_OBJECT

  public:
    explicit SeriesChart(QWidget* parent = nullptr);

    /// Replaces the series; clears the chart if there are no labels.
    void Show(const QStringList& labels, std::vector<ChartSeries> series, ChartShape shape,
              ChartDepth depth, bool legend);

  protected:
    void changeEvent(QEvent* event) override;
    /// Shows the values of the label under the pointer.
    bool viewportEvent(QEvent* event) override;

  private:
    /// Returns the label at a position of the view with its values; empty if there is none.
    QString TextAt(QPoint position) const;
    void AddBars(std::size_t first, std::size_t last, ChartDepth depth);
    void AddLine(std::size_t index, ChartShape shape, ChartDepth depth);
    void AddShapes(ChartShape shape, ChartDepth depth);
    void AddAxes(const QStringList& labels);
    void TakeColors();

    QStringList labels_;
    std::vector<ChartSeries> series_;
};

} // namespace platform::qt
