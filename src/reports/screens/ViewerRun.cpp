#include <QAction>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "core/MessagePump.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/ErrorRoll.h"
#include "platform/printing/PrintSurface.h"
#include "platform/qt/Text.h"
#include "reports/ReportList.h"
#include "reports/ViewerSettings.h"
#include "reports/screens/ReportSinks.h"
#include "reports/screens/frmPageSetup.h"
#include "reports/screens/frmReportViewer.h"
#include "ui_frmReportViewer.h"

namespace reports::screens {

using platform::qt::ToScreen;

namespace {

constexpr qint64 kBetweenMessagesMs = 40;

} // namespace

void frmReportViewer::RunOnce(int index) {
    ReportDef* const report = FindReport(index);
    if (report == nullptr) return;
    const QScopedValueRollback inRun(inRun_, true);
    reportIndex_ = index;
    ui_->vp->SetDocument(nullptr, nullptr);
    ui_->NavBar->SetDocument(nullptr, nullptr);
    document_.Clear();
    ui_->vp->SetDocument(&document_, fonts_.get());
    ui_->NavBar->SetDocument(&document_, fonts_.get());
    BeginWork(Work::Layout);
    bool wasLaid = false;
    core::forms::Guarded([&] {
        try {
            Lay(*report);
            wasLaid = true;
        } catch (const Cancelled&) {
            // The pages so far stay, and the line below them says that they are incomplete.
        }
    });
    EndWork();
    FinishRun(wasLaid);
}

void frmReportViewer::Lay(ReportDef& report) {
    setWindowTitle(tr("Vestrel Report Viewer - ") + ToScreen(report.Description));
    // A definition that can't be read leaves the choices hidden: they still belong to the previous
    // report.
    std::optional<ReportRun> run;
    try {
        run.emplace(report);
    } catch (...) {
        fixesOrientation_ = false;
        ui_->fraChoices->hide();
        throw;
    }
    ShowChoices(*run);
    WatchedPages pages(document_, [this](std::size_t done) { return GoOn(done); });
    platform::PrintSurface surface(*fonts_, &pages, nullptr);
    run->Draw(surface);
}

void frmReportViewer::ShowReport() {
    if (!isVisible()) {
        Open();
        ui_->vp->setFocus(Qt::OtherFocusReason);
    }
    ui_->vp->PagesAdded();
    ui_->NavBar->PagesAdded();
    ShowCurrentPage(ui_->vp->CurrentPage());
}

void frmReportViewer::FinishRun(bool wasLaid) {
    ShowReport();
    if (focusWidget() == nullptr) ui_->vp->setFocus(Qt::OtherFocusReason);
    ui_->lblWork->setText(wasLaid ? QString() : tr("Incomplete: press F5 to run it again"));
}

void frmReportViewer::ShowChoices(const ReportRun& run) {
    const ReportDef& report = run.Definition();
    title_ = run.Title();
    fixesOrientation_ = run.FixesOrientation();
    Action("mnuOpenExport")->setChecked(ReadOpenExport());
    SetNavbar(core::Preferences().ViewNavbar);
    SetToolbar(core::Preferences().ViewToolbar);

    const bool asksRecord = report.SelectItem != core::kNone;
    ui_->lblSelectedID->setVisible(asksRecord);
    ui_->cboSelectedID->setVisible(asksRecord);
    if (asksRecord) {
        const QString kind = ToScreen(core::RecordKindName(report.SelectItem));
        QLabel& label = *ui_->lblSelectedID;
        label.setText(QLatin1Char('&') + kind);
        // The size hint kerns the first two letters ("Te"), but an underlined letter isn't kerned.
        label.setMinimumWidth(label.sizeHint().width() + label.fontMetrics().averageCharWidth());
        ui_->cboSelectedID->setAccessibleName(kind);
        const QSignalBlocker quiet(ui_->cboSelectedID);
        ui_->cboSelectedID->clear();
        core::binding::FillList(report.SelectItem, *ui_->cboSelectedID,
                                {.selectedId = report.SelectedId, .nameNulls = true});
    }
    const bool asksDates = report.DateRange != DateRange::None || run.File().UsesDates;
    for (QWidget* const part : std::initializer_list<QWidget*>{ui_->lblStartDate, ui_->dpStartDate,
                                                               ui_->lblEndDate, ui_->dpEndDate}) {
        part->setVisible(asksDates);
    }
    ui_->dpStartDate->SetDay(run.StartDate());
    ui_->dpEndDate->SetDay(run.EndDate());
    ui_->dpStartDate->setProperty("shown", ui_->dpStartDate->text());
    ui_->dpEndDate->setProperty("shown", ui_->dpEndDate->text());
    ui_->fraChoices->setVisible(asksRecord || asksDates);
}

void frmReportViewer::ConnectChoices() {
    connect(ui_->cboSelectedID, &QComboBox::currentIndexChanged, this,
            &frmReportViewer::StoreChosenRecord);
    for (QLineEdit* const box : {ui_->dpStartDate, ui_->dpEndDate}) {
        connect(box, &QLineEdit::editingFinished, this, &frmReportViewer::StoreChosenDates);
    }
}

void frmReportViewer::OpenPageSetup() {
    if (auto* const open = findChild<frmPageSetup*>()) return open->activateWindow();
    auto* const dialog = new frmPageSetup(this);
    platform::PageSetup setup = ReadPageSetup();
    setup.orientation = document_.Info().setup.orientation;
    dialog->Setup(setup, fixesOrientation_ ? OrientationChoice::Fixed : OrientationChoice::Free);
    // Another report may be shown by the time the dialog is accepted.
    const auto store = [this, dialog, index = reportIndex_, isFixed = fixesOrientation_] {
        const platform::PageSetup chosen = dialog->Chosen();
        SavePageSetup(chosen);
        if (ReportDef* const report = FindReport(index); report && !isFixed)
            report->Orientation = chosen.orientation;
        RunReport(reportIndex_);
    };
    connect(dialog, &QDialog::accepted, this, store);
    dialog->open();
}

void frmReportViewer::BeginWork(Work work) {
    work_ = work;
    isCancelled_ = false;
    ui_->lblWork->clear();
    sinceMessages_.start();
}

/// Processes window messages now and then; returns false once the work is to stop.
bool frmReportViewer::GoOn(std::size_t done) {
    if (sinceMessages_.elapsed() >= kBetweenMessagesMs) {
        ShowProgress(done);
        core::LetMessagesRun();
        sinceMessages_.restart();
    }
    return !isCancelled_;
}

void frmReportViewer::ShowProgress(std::size_t done) {
    // Only long work gets here: until now nothing needed to be disabled.
    EnableActions();
    ui_->cmdCancel->show();
    const auto count = static_cast<qulonglong>(done);
    switch (work_) {
        case Work::Layout:
            ShowReport();
            ui_->lblWork->setText(tr("Laying out page %L1").arg(count));
            break;
        case Work::Export:
            ui_->lblWork->setText(tr("Exporting: %L1").arg(count));
            break;
        case Work::Print:
            ui_->lblWork->setText(tr("Printing page %L1").arg(count + 1));
            break;
        case Work::None:
            break;
    }
}

void frmReportViewer::EndWork() {
    work_ = Work::None;
    ui_->cmdCancel->hide();
    ui_->lblWork->clear();
    EnableActions();
}

} // namespace reports::screens
