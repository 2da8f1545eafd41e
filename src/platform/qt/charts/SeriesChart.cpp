#include "platform/qt/charts/SeriesChart.h"

#include <QEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QtCharts/QAreaSeries>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSeries>
#include <QtCharts/QBarSet>
#include <QtCharts/QChart>
#include <QtCharts/QHorizontalBarSeries>
#include <QtCharts/QLegend>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <array>

#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace platform::qt {

namespace {

/// Readable on light and dark, and distinguishable without seeing red.
constexpr std::array<QRgb, 3> kColors = {0xFF2F7ED8, 0xFF2CA25F, 0xFFE08214};
/// If there are more labels, they are drawn vertically.
constexpr qsizetype kMostFlatLabels = 12;
constexpr int kLineWidth = 2;
constexpr int kRaisedWidth = 6;
constexpr int kShade = 150; // percent darker
constexpr int kAreaAlpha = 70;

QColor ColorOf(std::size_t series) {
    return QColor(kColors.at(series % kColors.size()));
}

/// Shades a bar across or an area downwards.
QBrush Shaded(const QColor& color, QPointF to) {
    QLinearGradient gradient(QPointF(0, 0), to);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0, color.lighter(130));
    gradient.setColorAt(0.45, color);
    gradient.setColorAt(1, color.darker(kShade));
    return gradient;
}

QLineSeries* MakeLine(const ChartSeries& series, ChartShape shape) {
    auto* const line = new QLineSeries;
    line->setName(series.name);
    constexpr double kHalf = 0.5;
    for (std::size_t i = 0; i < series.values.size(); ++i) {
        const auto x = static_cast<double>(i);
        if (shape == ChartShape::Steps) {
            line->append(x - kHalf, series.values[i]);
            line->append(x + kHalf, series.values[i]);
        } else {
            line->append(x, series.values[i]);
        }
    }
    return line;
}

} // namespace

SeriesChart::SeriesChart(QWidget* parent) : QChartView(parent) {
    setRenderHint(QPainter::Antialiasing);
    setMinimumHeight(250);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setFocusPolicy(Qt::NoFocus);
    chart()->setMargins(QMargins(4, 4, 4, 4));
    chart()->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    chart()->setLocalizeNumbers(true);
    chart()->setBackgroundRoundness(0);
}

void SeriesChart::Show(const QStringList& labels, std::vector<ChartSeries> series, ChartShape shape,
                       ChartDepth depth, bool legend) {
    if (labels.isEmpty()) return;
    labels_ = labels;
    series_ = std::move(series);
    shape_ = shape;
    MoveTo(current_);
    chart()->removeAllSeries();
    for (QAbstractAxis* const axis : chart()->axes()) {
        chart()->removeAxis(axis);
        delete axis;
    }
    AddShapes(shape, depth);
    AddAxes(labels);
    chart()->legend()->setVisible(legend);
    chart()->legend()->setAlignment(Qt::AlignTop);
    TakeColors();
}

void SeriesChart::AddShapes(ChartShape shape, ChartDepth depth) {
    std::size_t firstLine = 0;
    if (shape == ChartShape::Bars || shape == ChartShape::Rows) {
        AddBars(0, series_.size(), depth);
        return;
    }
    if (shape == ChartShape::Combo) {
        AddBars(0, 1, depth);
        firstLine = series_.size() > 1 ? 1 : 0;
    }
    for (std::size_t index = firstLine; index < series_.size(); ++index)
        AddLine(index, shape, depth);
}

void SeriesChart::AddBars(std::size_t first, std::size_t last, ChartDepth depth) {
    QAbstractBarSeries* const bars =
        shape_ == ChartShape::Rows ? static_cast<QAbstractBarSeries*>(new QHorizontalBarSeries)
                                   : new QBarSeries;
    for (std::size_t index = first; index < last && index < series_.size(); ++index) {
        auto* const set = new QBarSet(series_[index].name);
        set->setColor(ColorOf(index));
        set->setBorderColor(ColorOf(index));
        if (marks_ == ChartMarks::Patterns && index > 0)
            set->setBrush(QBrush(ColorOf(index), Qt::BDiagPattern));
        if (depth == ChartDepth::Raised) {
            set->setBrush(Shaded(ColorOf(index), QPointF(1, 0)));
            set->setBorderColor(ColorOf(index).darker(kShade));
        }
        QList<double> values(series_[index].values.begin(), series_[index].values.end());
        if (shape_ == ChartShape::Rows) std::ranges::reverse(values);
        set->append(values);
        bars->append(set);
    }
    chart()->addSeries(bars);
}

void SeriesChart::AddLine(std::size_t index, ChartShape shape, ChartDepth depth) {
    // A line over its own bars takes the next colour.
    const bool isOverBars = shape == ChartShape::Combo && series_.size() == 1;
    QColor color = ColorOf(isOverBars ? index + 2 : index);
    QLineSeries* const line = MakeLine(series_[index], shape);
    line->setPen(QPen(color, kLineWidth));
    if (shape == ChartShape::Areas) {
        auto* const area = new QAreaSeries(line);
        line->setParent(area);
        area->setName(series_[index].name);
        area->setPen(QPen(color, kLineWidth));
        if (depth == ChartDepth::Raised) {
            area->setBrush(Shaded(color, QPointF(0, 1)));
        } else {
            color.setAlpha(kAreaAlpha);
            area->setBrush(color);
        }
        chart()->addSeries(area);
        return;
    }
    if (depth == ChartDepth::Raised) {
        QLineSeries* const edge = MakeLine(series_[index], shape);
        edge->setPen(QPen(color.darker(kShade), kRaisedWidth));
        chart()->addSeries(edge);
        for (QLegendMarker* const marker : chart()->legend()->markers(edge))
            marker->setVisible(false);
        line->setPen(QPen(color.lighter(115), kLineWidth));
    }
    chart()->addSeries(line);
}

void SeriesChart::AddAxes(const QStringList& labels) {
    auto* const across = new QBarCategoryAxis;
    double highest = 1;
    double lowest = 0;
    for (const ChartSeries& series : series_) {
        for (const double value : series.values) {
            highest = std::max(highest, value);
            lowest = std::min(lowest, value);
        }
    }
    // Labels are drawn as HTML, and rows from the bottom up.
    QStringList drawn;
    for (const QString& label : labels)
        drawn << label.toHtmlEscaped();
    if (shape_ == ChartShape::Rows) std::ranges::reverse(drawn);
    across->append(drawn);
    across->setLabelsAngle(shape_ != ChartShape::Rows && labels.size() > kMostFlatLabels ? -90 : 0);
    across->setGridLineVisible(false);
    across->setTruncateLabels(false);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    across->setLabelsFont(small);
    auto* const up = new QValueAxis;
    up->setLabelFormat(QStringLiteral("%.0f"));
    up->setRange(lowest, highest);
    up->setLabelsFont(small);
    if (shape_ == ChartShape::Rows) {
        up->setVisible(false);
        chart()->addAxis(across, Qt::AlignLeft);
        chart()->addAxis(up, Qt::AlignBottom);
    } else {
        up->applyNiceNumbers();
        chart()->addAxis(across, Qt::AlignBottom);
        chart()->addAxis(up, Qt::AlignLeft);
    }
    for (QAbstractSeries* const series : chart()->series()) {
        series->attachAxis(across);
        series->attachAxis(up);
    }
}

void SeriesChart::TakeColors() {
    const QPalette& colors = palette();
    const QColor text = colors.color(QPalette::Text);
    QColor faint = text;
    faint.setAlpha(50);
    chart()->setBackgroundBrush(colors.color(QPalette::Base));
    chart()->legend()->setLabelColor(text);
    for (QAbstractAxis* const axis : chart()->axes()) {
        axis->setLabelsColor(text);
        axis->setGridLineColor(faint);
        axis->setLinePenColor(faint);
    }
}

int SeriesChart::LabelAt(QPoint position) const {
    if (labels_.isEmpty()) return -1;
    const QPointF inChart = chart()->mapFromScene(mapToScene(position));
    const QRectF plot = chart()->plotArea();
    const bool isRows = shape_ == ChartShape::Rows;
    const double share = isRows ? (inChart.y() - plot.top()) / plot.height()
                                : (inChart.x() - plot.left()) / plot.width();
    const bool isInside = share >= 0 && share < 1; // false in a plot without a size, too
    if (!isInside) return -1;
    return static_cast<int>(share * static_cast<double>(labels_.size()));
}

QString SeriesChart::TextAt(QPoint position) const {
    const QPointF inChart = chart()->mapFromScene(mapToScene(position));
    if (!chart()->plotArea().contains(inChart)) return {};
    return TextOf(LabelAt(position));
}

QString SeriesChart::TextOf(int label) const {
    if (label < 0 || label >= labels_.size()) return {};
    QString text = labels_[label];
    for (const ChartSeries& series : series_) {
        if (label >= static_cast<int>(series.values.size())) continue;
        const double value = series.values[static_cast<std::size_t>(label)];
        text +=
            QStringLiteral("\n%1: %2")
                .arg(series.name, ToScreen(platform::FormatNumber(value, platform::kMoneyFormat)));
    }
    return text;
}

bool SeriesChart::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QChartView::viewportEvent(event);
    const auto* const help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), TextAt(help->pos()), viewport());
    return true;
}

void SeriesChart::LetLabelsOpen() {
    opens_ = true;
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::PointingHandCursor);
}

void SeriesChart::MoveTo(int label) {
    current_ = std::clamp(label, 0, std::max(0, static_cast<int>(labels_.size()) - 1));
    if (!opens_) return;
    setAccessibleDescription(TextOf(current_));
    viewport()->update();
}

void SeriesChart::mouseReleaseEvent(QMouseEvent* event) {
    QChartView::mouseReleaseEvent(event);
    const int label = LabelAt(event->pos());
    if (!opens_ || event->button() != Qt::LeftButton || label < 0) return;
    MoveTo(label);
    Q_EMIT LabelOpened(label);
}

void SeriesChart::keyPressEvent(QKeyEvent* event) {
    if (!opens_ || labels_.isEmpty()) return QChartView::keyPressEvent(event);
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Up:
            return MoveTo(current_ - 1);
        case Qt::Key_Right:
        case Qt::Key_Down:
            return MoveTo(current_ + 1);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            Q_EMIT LabelOpened(current_);
            return;
        default:
            QChartView::keyPressEvent(event);
    }
}

void SeriesChart::focusInEvent(QFocusEvent* event) {
    QChartView::focusInEvent(event);
    viewport()->update();
}

void SeriesChart::focusOutEvent(QFocusEvent* event) {
    QChartView::focusOutEvent(event);
    viewport()->update();
}

void SeriesChart::drawForeground(QPainter* painter, const QRectF& rectangle) {
    QChartView::drawForeground(painter, rectangle);
    if (!opens_ || !hasFocus() || labels_.isEmpty()) return;
    QRectF band = chart()->mapRectToScene(chart()->plotArea());
    const auto count = static_cast<double>(labels_.size());
    if (shape_ == ChartShape::Rows) {
        band.setTop(band.top() + band.height() * current_ / count);
        band.setHeight(chart()->plotArea().height() / count);
        band.setLeft(chart()->sceneBoundingRect().left() + 2);
    } else {
        band.setLeft(band.left() + band.width() * current_ / count);
        band.setWidth(chart()->plotArea().width() / count);
    }
    painter->setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(band);
}

void SeriesChart::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) TakeColors();
}

} // namespace platform::qt
