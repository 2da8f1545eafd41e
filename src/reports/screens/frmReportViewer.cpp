#include "reports/screens/frmReportViewer.h"

#include <QAction>
#include <QCloseEvent>
#include <QPointer>

#include "core/Preferences.h"
#include "core/binding/ComboList.h"
#include "core/forms/ErrorRoll.h"
#include "reports/ReportList.h"
#include "reports/ViewerSettings.h"
#include "ui_frmReportViewer.h"

namespace reports::screens {

frmReportViewer::frmReportViewer(QWidget* parent)
    : Form(parent),
      ui_(std::make_unique<Ui::frmReportViewer>()),
      fonts_(std::make_unique<platform::FontBook>()) {
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    SetUpMenus();
    SetUpToolBar();
    SetUpPages();
    ConnectChoices();
    ui_->splitter->setStretchFactor(1, 1);
    ui_->splitter->setSizes({160, 840});
    ui_->cmdCancel->hide();
    connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { isCancelled_ = true; });
    SetNavbar(core::Preferences().ViewNavbar);
    SetToolbar(core::Preferences().ViewToolbar);
    EnableActions();
}

frmReportViewer::~frmReportViewer() = default;

void frmReportViewer::RunReport(int index) {
    if (work_ != Work::None) {
        // The running work ends first.
        nextRun_ = index;
        isCancelled_ = true;
        return;
    }
    nextRun_ = index;
    while (nextRun_ && !closesAfter_) {
        const int next = *nextRun_;
        nextRun_.reset();
        RunOnce(next);
    }
    if (closesAfter_) close();
}

void frmReportViewer::reject() {
    if (work_ != Work::None) {
        isCancelled_ = true;
    } else if (focusWidget() == ui_->txtFind) {
        ui_->txtFind->clear();
        ui_->vp->Find({}, platform::SearchDirection::Forward);
        ui_->vp->setFocus(Qt::OtherFocusReason);
    } else {
        Form::reject();
    }
}

/// A window can't close while its own work is running: the work is stopped, and the window closes
/// after it.
void frmReportViewer::closeEvent(QCloseEvent* event) {
    if (work_ != Work::None) {
        isCancelled_ = true;
        closesAfter_ = true;
        event->ignore();
        return;
    }
    SaveSettings();
    Form::closeEvent(event);
}

void frmReportViewer::SaveSettings() const {
    SaveOpenExport(Action("mnuOpenExport")->isChecked());
    // Without pages nobody has seen an orientation.
    if (document_.PageCount() == 0) return;
    // The margins may have been changed since the last run.
    platform::PageSetup setup = ReadPageSetup();
    setup.orientation = document_.Info().setup.orientation;
    SavePageSetup(setup);
}

QAction* frmReportViewer::Action(const char* name) const {
    return findChild<QAction*>(QLatin1String(name));
}

void frmReportViewer::StoreChosenRecord() {
    ReportDef* const report = FindReport(reportIndex_);
    if (inRun_ || report == nullptr) return;
    report->SelectedId = core::binding::GetSelectedId(*ui_->cboSelectedID);
    RunReport(reportIndex_);
}

void frmReportViewer::StoreChosenDates() {
    ReportDef* const report = FindReport(reportIndex_);
    if (inRun_ || report == nullptr) return;
    const auto start = ui_->dpStartDate->Day();
    const auto end = ui_->dpEndDate->Day();
    // A text that is not a date stays marked.
    if (!start || !end || !start->IsSet() || !end->IsSet()) return;
    const auto shown = [](const QWidget* box) { return box->property("shown").toString(); };
    if (ui_->dpStartDate->text() == shown(ui_->dpStartDate) &&
        ui_->dpEndDate->text() == shown(ui_->dpEndDate)) {
        return;
    }
    report->StartDate = *start;
    report->EndDate = *end;
    report->DateChoice = DateRange::Select;
    RunReport(reportIndex_);
}

namespace {

QPointer<frmReportViewer>& OpenViewer() {
    static QPointer<frmReportViewer> viewer;
    return viewer;
}

} // namespace

void ViewReport(int index) {
    core::forms::Guarded([index] {
        if (!OpenViewer()) OpenViewer() = new frmReportViewer;
        OpenViewer()->RunReport(index);
        if (OpenViewer()) OpenViewer()->activateWindow();
    });
}

} // namespace reports::screens
