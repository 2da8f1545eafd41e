#pragma once

#include <QtCharts/QChartView>
#include <cstdint>
#include <vector>

namespace platform::qt {

/// How values are drawn over their labels. Combo draws the first series as bars and the others as
/// lines; with one series its line runs over its own bars.
enum class ChartShape : std::uint8_t { Bars, Lines, Areas, Steps, Combo };
/// Raised shapes are shaded, so that they stand out from the page.
enum class ChartDepth : std::uint8_t { Flat, Raised };

struct ChartSeries {
    QString name;
    std::vector<double> values; ///< one for each label
};

/// Money over time, with the colours of the palette: something to look at, nothing to do in.
class SeriesChart : public QChartView {
    Q_OBJECT

  public:
    explicit SeriesChart(QWidget* parent = nullptr);

    /// Draws the series in place of those before; nothing without labels.
    void Show(const QStringList& labels, std::vector<ChartSeries> series, ChartShape shape,
              ChartDepth depth, bool legend);

  protected:
    void changeEvent(QEvent* event) override;
    /// Shows the values of the label under the pointer.
    bool viewportEvent(QEvent* event) override;

  private:
    /// Returns the label under a position of the view, with its values, or an empty text.
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
