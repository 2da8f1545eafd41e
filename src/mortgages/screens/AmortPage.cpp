#include "mortgages/screens/AmortPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>

#include "core/grid/Grid.h"
#include "mortgages/AmortGrid.h"
#include "mortgages/screens/YearChart.h"
#include "platform/qt/Text.h"

namespace mortgages::screens {

namespace {

constexpr QRgb kTint = 0xFFE2FEEB;
constexpr QRgb kTintOnDark = 0xFF24382B;

/// Returns the tint of every second row; it is dark in dark windows, so that their text stays
/// readable.
std::optional<QColor> Tint(int row) {
    if (!AmortGrid::IsTinted(row)) return std::nullopt;
    const bool isDark = QGuiApplication::palette().color(QPalette::Base).lightness() < 128;
    return QColor(isDark ? kTintOnDark : kTint);
}

} // namespace

AmortPage::AmortPage(QWidget* parent)
    : QWidget(parent),
      settings_(LoadViewSettings()),
      table_(new core::grid::Grid(this)),
      chart_(new YearChart(this)),
      fault_(new QLabel(this)),
      instead_(new QWidget(this)),
      caption_(new QLabel(instead_)) {
    setProperty("panel", true);
    table_->setObjectName(QStringLiteral("grdAmort"));
    table_->setAccessibleName(tr("Schedule"));
    table_->setShowGrid(false);
    table_->Model().SetRowRule(Tint);
    fault_->setObjectName(QStringLiteral("lblFault"));
    fault_->setWordWrap(true);
    fault_->hide();

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    MakeOptions();
    MakeCaption();
    column->addWidget(fault_);
    column->addWidget(instead_);
    auto* const halves = new QSplitter(Qt::Vertical, this);
    halves->addWidget(table_);
    halves->addWidget(chart_);
    halves->setStretchFactor(0, 1);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    column->addWidget(halves, 1);
    setTabOrder(type_, table_);
}

QCheckBox* AmortPage::MakeCheck(const QString& text, const QString& hint, const char* name,
                                bool on) {
    auto* const box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setToolTip(hint);
    box->setChecked(on);
    connect(box, &QCheckBox::toggled, this, &AmortPage::Choose);
    return box;
}

void AmortPage::MakeOptions() {
    detail_ = MakeCheck(tr("&Detail"), tr("Principal, interest, payments left and penalties"),
                        "chkViewDetail", settings_.detail);
    yearToDate_ = MakeCheck(tr("&Year to date"), tr("Sums since each January"), "chkViewYTD",
                            settings_.yearToDate);
    cumulative_ = MakeCheck(tr("C&umulative"), tr("Sums since the first payment"),
                            "chkViewCumulative", settings_.cumulative);
    legend_ = MakeCheck(tr("L&egend"), tr("Explain the chart's colours"), "chkViewLegend",
                        settings_.legend);
    type_ = new QComboBox(this);
    type_->setObjectName(QStringLiteral("cboChartType"));
    type_->addItems({tr("Lines"), tr("Bars"), tr("Areas")});
    type_->setCurrentIndex(static_cast<int>(settings_.chart));
    type_->setAccessibleName(tr("Kind of chart"));
    connect(type_, &QComboBox::currentIndexChanged, this, &AmortPage::Choose);
    auto* const caption = new QLabel(tr("C&hart:"), this);
    caption->setBuddy(type_);

    auto* const row = new QHBoxLayout;
    for (QWidget* const option : std::initializer_list<QWidget*>{detail_, yearToDate_, cumulative_})
        row->addWidget(option);
    row->addStretch();
    for (QWidget* const option : std::initializer_list<QWidget*>{legend_, caption, type_})
        row->addWidget(option);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void AmortPage::MakeCaption() {
    instead_->setObjectName(QStringLiteral("fraInstead"));
    instead_->hide();
    caption_->setObjectName(QStringLiteral("lblCaption"));
    caption_->setWordWrap(true);
    QFont bold = caption_->font();
    bold.setBold(true);
    caption_->setFont(bold);
    auto* const own = new QPushButton(tr("Show O&wn Schedule"), instead_);
    own->setObjectName(QStringLiteral("cmdOwnSchedule"));
    own->setAutoDefault(false);
    connect(own, &QPushButton::clicked, this, &AmortPage::OwnScheduleAsked);
    auto* const row = new QHBoxLayout(instead_);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption_, 1);
    row->addWidget(own);
}

void AmortPage::Show(const clsMortgage& mortgage) {
    mortgage_ = mortgage;
    instead_->hide();
    ShowAll();
}

void AmortPage::ShowInstead(const clsMortgage& mortgage, const QString& caption) {
    mortgage_ = mortgage;
    caption_->setText(caption);
    instead_->show();
    ShowAll();
}

void AmortPage::ShowFault(std::string_view reason) {
    fault_->setText(platform::qt::ToScreen(reason));
    fault_->setVisible(!reason.empty());
}

void AmortPage::Choose() {
    settings_ = {.detail = detail_->isChecked(),
                 .yearToDate = yearToDate_->isChecked(),
                 .cumulative = cumulative_->isChecked(),
                 .legend = legend_->isChecked(),
                 .chart = ChartType{type_->currentIndex()}};
    SaveViewSettings(settings_);
    ShowAll();
}

void AmortPage::ShowAll() {
    core::grid::LoadGrid(*table_,
                         mortgage_.ShowGrid({.showDue = true,
                                             .showDetail = settings_.detail,
                                             .showYear = settings_.yearToDate,
                                             .showTotal = settings_.cumulative}),
                         core::grid::HeaderFont::Plain);
    core::grid::AutoSizeGrid(*table_, 0, core::grid::Sizing::FillGrid);
    UpdateChart();
}

void AmortPage::UpdateChart() {
    chart_->Show(ScheduleYears(mortgage_), settings_.chart, settings_.legend);
}

} // namespace mortgages::screens
