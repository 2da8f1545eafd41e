#include "reports/screens/frmReports.h"

#include <QButtonGroup>

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/binding/Wiring.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/screens/ReportIcons.h"
#include "ui_frmReports.h"

namespace reports::screens {

using core::forms::Guarded;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr int kReportRole = Qt::UserRole;
/// How many past years are offered.
constexpr int kYears = 30;

int ReportOf(const QListWidgetItem* item) {
    return item == nullptr ? 0 : item->data(kReportRole).toInt();
}

} // namespace

frmReports::frmReports(QWidget* parent) : Form(parent), ui_(std::make_unique<Ui::frmReports>()) {
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    MakeTabs();
    Connect();
}

frmReports::~frmReports() = default;

void frmReports::MakeTabs() {
    for (const auto& [title, tab] : {std::pair(tr("&All Reports"), CatalogueTab::All),
                                     std::pair(tr("&Item Detail"), CatalogueTab::ItemDetail),
                                     std::pair(tr("Fi&nancial"), CatalogueTab::Financial),
                                     std::pair(tr("Su&mmary"), CatalogueTab::Summary)}) {
        const int at = ui_->tabFilter->addTab(title);
        ui_->tabFilter->setTabData(at, static_cast<int>(tab));
    }
}

void frmReports::Connect() {
    connect(ui_->tabFilter, &QTabBar::currentChanged, this,
            [this] { Guarded([this] { ShowTab(); }); });
    connect(ui_->txtFind, &QLineEdit::textChanged, this,
            [this] { Guarded([this] { ShowTab(); }); });
    connect(ui_->lvw, &QListWidget::currentItemChanged, this,
            [this] { Guarded([this] { Choose(); }); });
    // Enter belongs to the default button.
    connect(ui_->lvw, &QListWidget::itemDoubleClicked, ui_->cmdReport, &QPushButton::click);
    auto* const dates = new QButtonGroup(this);
    for (QRadioButton* const option :
         {ui_->optDateCurrent, ui_->optDateTrailing, ui_->optDatePrevious, ui_->optDateSelected})
        dates->addButton(option);
    connect(dates, &QButtonGroup::buttonToggled, this, &frmReports::EnableDates);
    connect(ui_->cmdReport, &QPushButton::clicked, this, [this] { Guarded([this] { Run(); }); });
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->cmdHelp, &QPushButton::clicked, this, [this] { core::forms::ShowHelp(*this); });
}

void frmReports::Setup() {
    const int year = platform::Today().Year();
    for (int back = 0; back < kYears; ++back)
        ui_->cboYear->addItem(QString::number(year - back));
    ui_->cboYear->setCurrentIndex(0);
    ui_->cmdReport->setEnabled(false);
    ui_->tabFilter->setCurrentIndex(static_cast<int>(CatalogueTab::Financial));
    Guarded([this] { ShowTab(); });
    Open();
    ui_->lvw->setFocus();
}

void frmReports::Select(int report) {
    ui_->txtFind->clear();
    ui_->tabFilter->setCurrentIndex(static_cast<int>(CatalogueTab::All));
    for (int row = 0; row < ui_->lvw->count(); ++row) {
        if (ReportOf(ui_->lvw->item(row)) == report) ui_->lvw->setCurrentRow(row);
    }
}

void frmReports::ShowTab() {
    const auto tab =
        static_cast<CatalogueTab>(ui_->tabFilter->tabData(ui_->tabFilter->currentIndex()).toInt());
    const QString wanted = ui_->txtFind->text().trimmed();
    StoreAnswers();
    shown_ = 0;
    const QSignalBlocker quiet(ui_->lvw);
    ui_->lvw->clear();
    for (int index = 1; index <= ReportCount(); ++index) {
        const ReportDef& report = *FindReport(index);
        const bool isOnTab = tab == CatalogueTab::All || report.Tab == tab;
        if (report.Kind != ReportKind::Report || !isOnTab) continue;
        const QString text = ToScreen(report.Description);
        if (!text.contains(wanted, Qt::CaseInsensitive)) continue;
        auto* const item = new QListWidgetItem(ReportIcon(report.Icon), text, ui_->lvw);
        item->setData(kReportRole, index);
        item->setToolTip(ToScreen(report.Notes));
    }
    ui_->lvw->setCurrentRow(0);
    Choose();
}

/// The answers belong to the report that was shown; the questions belong to the new one.
void frmReports::Choose() {
    if (!StoreAnswers()) {
        // Stays on the report whose date is not valid.
        for (int row = 0; row < ui_->lvw->count(); ++row) {
            if (ReportOf(ui_->lvw->item(row)) != shown_) continue;
            const QSignalBlocker quiet(ui_->lvw);
            ui_->lvw->setCurrentRow(row);
            return;
        }
    }
    shown_ = ReportOf(ui_->lvw->currentItem());
    ReportDef* const report = FindReport(shown_);
    ui_->cmdReport->setEnabled(report != nullptr && HasReportViewer());
    for (QWidget* const panel : {ui_->fraDb, ui_->fraDetail, ui_->fraYear, ui_->fraDate})
        panel->setVisible(false);
    if (report == nullptr) {
        ui_->lblNotes->setText(ui_->txtFind->text().isEmpty()
                                   ? tr("There are no reports of this kind.")
                                   : tr("No report of this kind has such a name."));
        return;
    }
    ShowQuestions(*report);
}

void frmReports::ShowQuestions(ReportDef& report) {
    ui_->lblNotes->setText(ToScreen(report.Notes));
    ui_->fraDb->setVisible(report.SelectItem != core::kNone);
    if (report.SelectItem != core::kNone) {
        ui_->fraDb->setTitle(ToScreen(core::RecordKindName(report.SelectItem)));
        const QSignalBlocker quiet(ui_->cboDbItem);
        ui_->cboDbItem->clear();
        core::binding::FillList(report.SelectItem, *ui_->cboDbItem,
                                {.selectedId = report.SelectedId});
    }
    ui_->fraDetail->setVisible(report.SelectDetail);
    ui_->optDetailFull->setChecked(report.DetailLevel != Detail::Summary);
    ui_->optDetailSummary->setChecked(report.DetailLevel == Detail::Summary);
    ui_->fraYear->setVisible(report.SelectYear);
    const QString year = ToScreen(report.SelectedYear);
    if (ui_->cboYear->findText(year) < 0) ui_->cboYear->addItem(year);
    ui_->cboYear->setCurrentText(year);
    ui_->fraDate->setVisible(report.DateRange == DateRange::Select);
    ShowDates(report);
}

void frmReports::ShowDates(const ReportDef& report) {
    switch (report.DateChoice) {
        case DateRange::CurrentYear:
            ui_->optDateCurrent->setChecked(true);
            break;
        case DateRange::TrailingYear:
            ui_->optDateTrailing->setChecked(true);
            break;
        case DateRange::PreviousYear:
            ui_->optDatePrevious->setChecked(true);
            break;
        case DateRange::None:
        case DateRange::Select:
            ui_->optDateSelected->setChecked(true);
            break;
    }
    const platform::Date today = platform::Today();
    ui_->dpStart->SetDay(report.StartDate.IsSet()
                             ? report.StartDate
                             : platform::DateAdd(platform::Interval::Year, -1, today));
    ui_->dpEnd->SetDay(report.EndDate.IsSet() ? report.EndDate : today);
    EnableDates();
}

void frmReports::EnableDates() {
    const bool areAsked = ui_->optDateSelected->isChecked();
    for (QWidget* const control :
         std::initializer_list<QWidget*>{ui_->lblStart, ui_->dpStart, ui_->lblEnd, ui_->dpEnd})
        control->setEnabled(areAsked);
}

bool frmReports::StoreAnswers() {
    ReportDef* const report = FindReport(shown_);
    if (report == nullptr) return true;
    return core::forms::ShowErrorRoll(StoreIn(*report));
}

std::vector<std::string> frmReports::StoreIn(ReportDef& report) const {
    if (report.SelectItem != core::kNone)
        report.SelectedId = core::binding::GetSelectedId(*ui_->cboDbItem);
    if (report.SelectDetail)
        report.DetailLevel = ui_->optDetailSummary->isChecked() ? Detail::Summary : Detail::Full;
    if (report.SelectYear) report.SelectedYear = FromScreen(ui_->cboYear->currentText());
    if (report.DateRange != DateRange::Select) return {};
    return StoreDates(report);
}

std::vector<std::string> frmReports::StoreDates(ReportDef& report) const {
    report.DateChoice = ui_->optDateCurrent->isChecked()    ? DateRange::CurrentYear
                        : ui_->optDateTrailing->isChecked() ? DateRange::TrailingYear
                        : ui_->optDatePrevious->isChecked() ? DateRange::PreviousYear
                                                            : DateRange::Select;
    if (report.DateChoice != DateRange::Select) return {};
    const auto start = ui_->dpStart->Day();
    const auto end = ui_->dpEnd->Day();
    std::vector<std::string> faults;
    if (!start || !start->IsSet()) faults.emplace_back("The first date is not a valid date.");
    if (!end || !end->IsSet()) faults.emplace_back("The last date is not a valid date.");
    if (!faults.empty()) return faults;
    report.StartDate = *start;
    report.EndDate = *end;
    return {};
}

void frmReports::Run() {
    if (shown_ == 0 || !StoreAnswers()) return;
    reports::RunReport(shown_);
}

void frmReports::closeEvent(QCloseEvent* event) {
    // If a date isn't valid, it is dropped when the screen closes.
    if (ReportDef* const report = FindReport(shown_)) static_cast<void>(StoreIn(*report));
    Form::closeEvent(event);
}

/// Records are added and deleted while the catalogue is open.
void frmReports::NotifyUpdate(core::RecordKind kind, std::int16_t action, std::int32_t id) {
    Form::NotifyUpdate(kind, action, id);
    const ReportDef* const report = FindReport(shown_);
    if (report == nullptr || report->SelectItem == core::kNone) return;
    Guarded([&] {
        core::binding::FillList(report->SelectItem, *ui_->cboDbItem,
                                {.selectedId = core::binding::GetSelectedId(*ui_->cboDbItem)});
    });
}

} // namespace reports::screens
