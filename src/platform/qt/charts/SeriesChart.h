#pragma once

#include <QtCharts/QChartView>
#include <cstdint>
#include <vector>

namespace platform::qt {

/// How values are drawn above their labels. Combo draws the first series as bars and the others as
/// lines; a single series is drawn as bars with a line over them. Rows are horizontal bars below
/// each other, beside their labels and without an axis: for labels that contain the values.
enum class ChartShape : std::uint8_t { Bars, Lines, Areas, Steps, Combo, Rows };
/// Raised shapes are shaded, so that they stand out from the page.
enum class ChartDepth : std::uint8_t { Flat, Raised };

/// How the bars of different series differ: in colour only, or in pattern too, for users who don't
/// see the colours and for printers without them.
enum class ChartMarks : std::uint8_t { Colors, Patterns };

struct ChartSeries {
    QString name;
    std::vector<double> values; ///< one for each label
};

/// A chart of money over time, in the colours of the palette. It is read-only, unless its labels
/// can be opened.
class SeriesChart : public QChartView {
    Q_OBJECT

  public:
    explicit SeriesChart(QWidget* parent = nullptr);

    /// Replaces the series; clears the chart if there are no labels.
    void Show(const QStringList& labels, std::vector<ChartSeries> series, ChartShape shape,
              ChartDepth depth, bool legend);
    /// Sets the marks, which take effect with the next Show.
    void SetMarks(ChartMarks marks) { marks_ = marks; }

    /// Lets the user open the labels, by a click or by the arrow keys and Enter.
    void LetLabelsOpen();
    /// Returns the label at a position of the view, -1 for none.
    int LabelAt(QPoint position) const;

  Q_SIGNALS:
    void LabelOpened(int label);

  protected:
    void changeEvent(QEvent* event) override;
    /// Shows the values of the label under the pointer.
    bool viewportEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    /// Frames the label that Enter would open.
    void drawForeground(QPainter* painter, const QRectF& rectangle) override;

  private:
    QString TextOf(int label) const;
    void MoveTo(int label);
    /// Returns the label at a position of the view with its values; empty if there is none.
    QString TextAt(QPoint position) const;
    void AddBars(std::size_t first, std::size_t last, ChartDepth depth);
    void AddLine(std::size_t index, ChartShape shape, ChartDepth depth);
    void AddShapes(ChartShape shape, ChartDepth depth);
    void AddAxes(const QStringList& labels);
    void TakeColors();

    ChartShape shape_ = ChartShape::Bars;
    ChartMarks marks_ = ChartMarks::Colors;
    bool opens_ = false;
    int current_ = 0; ///< the label that Enter opens
    QStringList labels_;
    std::vector<ChartSeries> series_;
};

} // namespace platform::qt
