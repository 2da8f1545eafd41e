#include "mortgages/screens/YearChart.h"

#include <QEvent>
#include <QLocale>
#include <QtCharts/QAreaSeries>
#include <QtCharts/QBarCategoryAxis>
#include <QtCharts/QBarSeries>
#include <QtCharts/QBarSet>
#include <QtCharts/QChart>
#include <QtCharts/QLegend>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#include <algorithm>
#include <array>

#include "platform/qt/Text.h"

namespace mortgages::screens {

using platform::qt::ToScreen;

namespace {

constexpr std::array<double YearPoint::*, 3> kValues = {&YearPoint::balance, &YearPoint::principal,
                                                        &YearPoint::interest};
/// Readable on light and on dark, and apart for those who see no red.
constexpr std::array<QRgb, 3> kColors = {0xFF2F7ED8, 0xFF2CA25F, 0xFFE08214};

/// More of them stand upright.
constexpr std::size_t kMostFlatLabels = 12;

QString Name(std::size_t series) {
    return ToScreen(kYearSeries[series]);
}

QLineSeries* MakeLine(const std::vector<YearPoint>& years, std::size_t series) {
    auto* const line = new QLineSeries;
    line->setName(Name(series));
    for (std::size_t year = 0; year < years.size(); ++year)
        line->append(static_cast<double>(year), years[year].*kValues[series]);
    return line;
}

} // namespace

YearChart::YearChart(QWidget* parent) : QChartView(parent) {
    setObjectName(QStringLiteral("chtYears"));
    setAccessibleName(tr("The loan by years"));
    setRenderHint(QPainter::Antialiasing);
    setMinimumHeight(250);
    // There is nothing to do in it.
    setFocusPolicy(Qt::NoFocus);
    viewport()->setFocusPolicy(Qt::NoFocus);
    chart()->setMargins(QMargins(4, 4, 4, 4));
    chart()->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    chart()->setLocalizeNumbers(true);
    chart()->setBackgroundRoundness(0);
}

void YearChart::Show(const std::vector<YearPoint>& years, ChartType type, bool legend) {
    if (years.empty()) return;
    years_ = years;
    chart()->removeAllSeries();
    for (QAbstractAxis* const axis : chart()->axes()) {
        chart()->removeAxis(axis);
        delete axis;
    }
    AddSeries(type);
    AddAxes();
    chart()->legend()->setVisible(legend);
    chart()->legend()->setAlignment(Qt::AlignTop);
    TakeColors();
}

void YearChart::AddSeries(ChartType type) {
    if (type == ChartType::Bars) {
        auto* const bars = new QBarSeries;
        for (std::size_t series = 0; series < kValues.size(); ++series) {
            auto* const set = new QBarSet(Name(series));
            set->setColor(QColor(kColors[series]));
            set->setBorderColor(QColor(kColors[series]));
            for (const YearPoint& year : years_)
                set->append(year.*kValues[series]);
            bars->append(set);
        }
        chart()->addSeries(bars);
        return;
    }
    for (std::size_t series = 0; series < kValues.size(); ++series) {
        QLineSeries* const line = MakeLine(years_, series);
        QColor color(kColors[series]);
        line->setPen(QPen(color, 2));
        if (type == ChartType::Lines) {
            chart()->addSeries(line);
            continue;
        }
        auto* const area = new QAreaSeries(line);
        line->setParent(area);
        area->setName(Name(series));
        area->setPen(QPen(color, 2));
        color.setAlpha(70);
        area->setBrush(color);
        chart()->addSeries(area);
    }
}

void YearChart::AddAxes() {
    auto* const across = new QBarCategoryAxis;
    QStringList labels;
    double highest = 1;
    for (const YearPoint& year : years_) {
        labels << ToScreen(year.label);
        for (const auto value : kValues)
            highest = std::max(highest, year.*value);
    }
    across->append(labels);
    across->setLabelsAngle(years_.size() > kMostFlatLabels ? -90 : 0);
    across->setGridLineVisible(false);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    across->setLabelsFont(small);
    auto* const up = new QValueAxis;
    up->setLabelFormat(QStringLiteral("%.0f"));
    up->setRange(0, highest);
    up->applyNiceNumbers();
    up->setLabelsFont(small);
    chart()->addAxis(across, Qt::AlignBottom);
    chart()->addAxis(up, Qt::AlignLeft);
    for (QAbstractSeries* const series : chart()->series()) {
        series->attachAxis(across);
        series->attachAxis(up);
    }
}

void YearChart::TakeColors() {
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

void YearChart::changeEvent(QEvent* event) {
    QChartView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) TakeColors();
}

} // namespace mortgages::screens
