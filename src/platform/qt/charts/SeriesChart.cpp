#include "platform/qt/charts/SeriesChart.h"

#include <QEvent>
#include <QHelpEvent>
#include <QLocale>
#include <QToolTip>
#include <QtCharts/QAreaSeries>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSeries>
#include <QtCharts/QBarSet>
#include <QtCharts/QChart>
#include <QtCharts/QLegend>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace platform::qt {

namespace {

/// Readable on light and dark, and distinguishable without seeing red.
constexpr std::array<QRgb, 3> kColors = {0xFF2F7ED8, 0xFF2CA25F, 0xFFE08214};
/// With more labels they are drawn vertically.
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
    if (shape == ChartShape::Bars) {
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
    auto* const bars = new QBarSeries;
    for (std::size_t index = first; index < last && index < series_.size(); ++index) {
        auto* const set = new QBarSet(series_[index].name);
        set->setColor(ColorOf(index));
        set->setBorderColor(ColorOf(index));
        if (depth == ChartDepth::Raised) {
            set->setBrush(Shaded(ColorOf(index), QPointF(1, 0)));
            set->setBorderColor(ColorOf(index).darker(kShade));
        }
        for (const double value : series_[index].values)
            set->append(value);
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
    across->append(labels);
    across->setLabelsAngle(labels.size() > kMostFlatLabels ? -90 : 0);
    across->setGridLineVisible(false);
    across->setTruncateLabels(false);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    across->setLabelsFont(small);
    auto* const up = new QValueAxis;
    up->setLabelFormat(QStringLiteral("%.0f"));
    up->setRange(lowest, highest);
    up->applyNiceNumbers();
    up->setLabelsFont(small);
    chart()->addAxis(across, Qt::AlignBottom);
    chart()->addAxis(up, Qt::AlignLeft);
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

QString SeriesChart::TextAt(QPoint position) const {
    if (labels_.isEmpty() || chart()->series().isEmpty()) return {};
    const QPointF inChart = chart()->mapFromScene(mapToScene(position));
    if (!chart()->plotArea().contains(inChart)) return {};
    // The middle of a category is at the category's number.
    const double across = chart()->mapToValue(inChart, chart()->series().front()).x();
    const auto label = std::clamp<qsizetype>(std::lround(across), 0, labels_.size() - 1);
    QString text = labels_[label];
    for (const ChartSeries& series : series_) {
        if (label >= static_cast<qsizetype>(series.values.size())) continue;
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

void SeriesChart::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) TakeColors();
}

} // namespace platform::qt
