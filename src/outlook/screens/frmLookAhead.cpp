#include "outlook/screens/frmLookAhead.h"

#include <QLocale>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "core/EditRecord.h"
#include "core/Globals.h"
#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "core/binding/Tags.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "core/grid/Grid.h"
#include "outlook/ForecastTable.h"
#include "outlook/LookAhead.h"
#include "outlook/screens/ForecastRun.h"
#include "outlook/screens/MonthView.h"
#include "platform/qt/Icons.h"
#include "platform/qt/PressGuard.h"
#include "platform/qt/Text.h"
#include "platform/qt/charts/SeriesChart.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"
#include "ui_frmLookAhead.h"

namespace outlook::screens {

using platform::Date;
using platform::DateAdd;
using platform::Interval;
using platform::qt::ToScreen;

namespace {

constexpr std::string_view kDaysSetting = "ViewLookAheadDays";
constexpr std::array kPeriods = {30, 90, 365};

QString Money(platform::Currency amount) {
    return ToScreen(platform::FormatMoney(amount));
}

QString MonthName(Date day) {
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    return QStringLiteral("%1 %2").arg(english.monthName(static_cast<int>(day.Month())),
                                       QString::number(day.Year()));
}

} // namespace

frmLookAhead::frmLookAhead(QWidget* parent)
    : Form(parent), ui_(std::make_unique<Ui::frmLookAhead>()), run_(new ForecastRun(this)) {
    ui_->setupUi(this);
    SetUpControls();
    Connect();
}

frmLookAhead::~frmLookAhead() = default;

void frmLookAhead::SetUpControls() {
    core::binding::WireControls(*this);
    const std::int32_t chosen =
        core::GetRegNumber(core::kPreferencesKey, kDaysSetting, kPeriods.front());
    for (const int days : kPeriods) {
        ui_->cboDays->addItem(tr("Next %1 days").arg(days), days);
        if (days == chosen) ui_->cboDays->setCurrentIndex(ui_->cboDays->count() - 1);
    }
    core::grid::SetupGrid(*ui_->lvwComing);
    ui_->cmdEarlier->setIcon(platform::qt::LoadIcon(QStringLiteral("back")));
    ui_->cmdLater->setIcon(platform::qt::LoadIcon(QStringLiteral("forward")));
    for (QWidget* const step : {ui_->cmdEarlier, ui_->cmdLater})
        step->setProperty(platform::qt::kTakesEveryPress, true);
    ui_->lblChanged->hide();
    ui_->prgLook->hide();
    core::forms::ActionBar& bar = *ui_->cmdAction;
    bar.Apply().setText(tr("&Look Again"));
    bar.Apply().setToolTip(tr("Work out again what is coming"));
    core::binding::SetTag(bar.Apply(), "START");
    bar.Cancel().setText(tr("&Stop"));
    bar.Cancel().setToolTip(tr("Stop looking ahead"));
    core::binding::SetTag(bar.Cancel(), "STOP");
    bar.Close().setToolTip(tr("Close (Esc)"));
}

void frmLookAhead::Connect() {
    const core::forms::ActionBar& bar = *ui_->cmdAction;
    connect(&bar, &core::forms::ActionBar::ApplyClicked, this, &frmLookAhead::Look);
    connect(&bar, &core::forms::ActionBar::CancelClicked, run_, &ForecastRun::Stop);
    connect(&bar, &core::forms::ActionBar::CloseClicked, this, &QWidget::close);
    connect(&bar, &core::forms::ActionBar::HelpClicked, this,
            [this] { core::forms::ShowHelp(*this); });
    connect(run_, &ForecastRun::Done, this, &frmLookAhead::Take);
    connect(run_, &ForecastRun::Failed, this, &frmLookAhead::TellFailure);
    connect(ui_->cboDays, &QComboBox::currentIndexChanged, this, [this] {
        core::SetRegNumber(core::kPreferencesKey, kDaysSetting,
                           ui_->cboDays->currentData().toInt());
        Look();
    });
    connect(ui_->chkLateFees, &QCheckBox::toggled, this, &frmLookAhead::ShowForecast);
    connect(ui_->lvwComing, &core::grid::Grid::RowChosen, this, &frmLookAhead::OpenRow);
    connect(ui_->cmdEarlier, &QAbstractButton::clicked, this, [this] { TurnMonth(-1); });
    connect(ui_->cmdLater, &QAbstractButton::clicked, this, [this] { TurnMonth(1); });
    connect(ui_->tblMonth, &MonthView::DayChosen, this, &frmLookAhead::ShowDayInList);
}

void frmLookAhead::Setup() {
    Open();
    Look();
}

void frmLookAhead::Look() {
    core::forms::Guarded([this] {
        const platform::Connection& books = core::App().Connection;
        if (!books.IsOpen()) throw platform::Error("No database is open.");
        const Date until =
            DateAdd(Interval::Day, ui_->cboDays->currentData().toInt(), platform::Today());
        run_->Start(books.File(), until);
        ui_->lblChanged->hide();
        ui_->lblSummary->setText(
            tr("Looking ahead to %1 on a copy of the books...").arg(ToScreen(until.ToText())));
    });
    ShowRunning(run_->IsRunning());
}

void frmLookAhead::ShowRunning(bool isRunning) {
    ui_->prgLook->setVisible(isRunning);
    ui_->cmdAction->Cancel().setEnabled(isRunning);
    ui_->cmdAction->Apply().setEnabled(!isRunning);
}

void frmLookAhead::Take(const std::shared_ptr<const Forecast>& forecast) {
    ShowRunning(false);
    forecast_ = forecast;
    ShowForecast();
}

void frmLookAhead::TellFailure(const std::exception_ptr& failure) {
    ShowRunning(false);
    ShowSummary();
    try {
        std::rethrow_exception(failure);
    } catch (const Stopped& stopped) {
        ui_->lblSummary->setText(ToScreen(stopped.what()));
    } catch (const std::exception& error) {
        ui_->lblSummary->setText(tr("The look ahead failed."));
        core::forms::ShowFailure(error);
    }
}

void frmLookAhead::NotifyUpdate(core::RecordKind /*kind*/, std::int16_t /*action*/,
                                std::int32_t /*id*/) {
    ui_->lblChanged->setVisible(forecast_ != nullptr || run_->IsRunning());
}

void frmLookAhead::ShowForecast() {
    if (!forecast_) return;
    shown_ = ui_->chkLateFees->isChecked() ? *forecast_ : WithoutLateFees(*forecast_);
    days_ = DaysOf(shown_);
    ShowSummary();
    ShowList();
    ShowChart();
    ShowMonth(day_.IsSet() && day_ >= shown_.today && day_ <= shown_.until ? day_ : shown_.today);
}

void frmLookAhead::ShowSummary() {
    if (!forecast_) return;
    const Sums total = TotalOf(shown_);
    QString text = tr("Until %1, %2 falls due to you and %3 from you, which leaves %4.")
                       .arg(ToScreen(shown_.until.ToText()), Money(total.in), Money(total.out),
                            Money(total.Net()));
    const auto hidden = static_cast<int>(forecast_->rows.size() - shown_.rows.size());
    if (hidden == 1) text += tr(" One late fee is left out.");
    if (hidden > 1) text += tr(" %1 late fees are left out.").arg(hidden);
    for (const std::string& fault : shown_.faults)
        text += tr("\nNot included: %1").arg(ToScreen(fault));
    ui_->lblSummary->setText(text);
}

void frmLookAhead::ShowList() {
    ui_->lvwComing->SetEmptyText(tr("Nothing is coming in these days."));
    core::grid::LoadGrid(*ui_->lvwComing, std::make_unique<ForecastTable>(shown_));
    core::grid::AutoSizeGrid(*ui_->lvwComing, ForecastTable::kFirstShown,
                             core::grid::Sizing::FitGrid);
    ui_->lvwComing->SelectId(1);
}

void frmLookAhead::ShowChart() {
    QStringList labels;
    platform::qt::ChartSeries in{tr("Due to you"), {}};
    platform::qt::ChartSeries out{tr("Due from you"), {}};
    platform::qt::ChartSeries net{tr("Left over"), {}};
    for (const Week& week : WeeksOf(shown_)) {
        labels << ToScreen(week.first.ToText().substr(0, std::string_view("mm/dd").size()));
        in.values.push_back(week.sums.in.ToDouble());
        out.values.push_back(week.sums.out.ToDouble());
        net.values.push_back(week.sums.Net().ToDouble());
    }
    using namespace platform::qt;
    ui_->chtWeeks->Show(labels, {in, out, net}, ChartShape::Lines, ChartDepth::Flat, true);
}

void frmLookAhead::ShowMonth(Date day) {
    day_ = day;
    ui_->tblMonth->ShowMonth(day, shown_.today, days_);
    ui_->lblMonth->setText(MonthName(day));
    ui_->cmdEarlier->setEnabled(DateDiff(Interval::Month, shown_.today, day) > 0);
    ui_->cmdLater->setEnabled(DateDiff(Interval::Month, day, shown_.until) > 0);
}

void frmLookAhead::TurnMonth(int step) {
    if (!forecast_) return;
    const Date there = DateAdd(Interval::Month, step, Date(day_.Year(), day_.Month(), 1));
    ShowMonth(std::clamp(there, shown_.today, shown_.until));
}

void frmLookAhead::OpenRow(std::int32_t number) const {
    if (number < 1 || number > std::ssize(shown_.rows)) return;
    const ForecastRow& row = shown_.rows[static_cast<std::size_t>(number - 1)];
    core::forms::Guarded([&] { core::EditRecord(row.recordKind, row.recordId); });
}

void frmLookAhead::ShowDayInList(Date day) {
    const auto found = days_.find(day);
    if (found == days_.end()) return;
    ui_->tabs->setCurrentWidget(ui_->pageList);
    ui_->lvwComing->SelectId(static_cast<std::int32_t>(found->second.firstRow) + 1);
    ui_->lvwComing->setFocus(Qt::OtherFocusReason);
}

} // namespace outlook::screens
