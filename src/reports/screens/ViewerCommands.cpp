#include <QAction>
#include <QMenuBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/Preferences.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Help.h"
#include "platform/qt/Icons.h"
#include "reports/ViewerSettings.h"
#include "reports/screens/frmReportViewer.h"
#include "ui_frmReportViewer.h"

namespace reports::screens {

using platform::qt::LoadIcon;
using platform::qt::PageFit;

namespace {

std::function<void()>& CatalogueOpener() {
    static std::function<void()> opener;
    return opener;
}

} // namespace

void SetCatalogueOpener(std::function<void()> opener) {
    CatalogueOpener() = std::move(opener);
}

QAction* frmReportViewer::AddAction(QMenu& menu, const char* name, const QString& text,
                                    const char* icon) {
    QAction* const action = menu.addAction(LoadIcon(QLatin1String(icon)), text);
    action->setObjectName(QLatin1String(name));
    action->setParent(this);
    addAction(action); // so that its key works wherever the focus is
    return action;
}

void frmReportViewer::SetUpMenus() {
    auto* const bar = new QMenuBar(this);
    layout()->setMenuBar(bar);
    QMenu& file = *bar->addMenu(tr("&File"));
    file.setToolTipsVisible(true);
    FillFileMenu(file);
    FillViewMenu(*bar->addMenu(tr("&View")));
    QMenu& help = *bar->addMenu(tr("&Help"));
    QAction* const about = AddAction(help, "mnuHelp", tr("&Report Viewer"), "help");
    connect(about, &QAction::triggered, this, [this] { core::forms::ShowHelp(*this); });
}

void frmReportViewer::FillFileMenu(QMenu& menu) {
    const auto add = [&](const char* name, const QString& text, const char* icon,
                         const QKeySequence& key, void (frmReportViewer::*work)()) {
        QAction* const action = AddAction(menu, name, text, icon);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, work);
    };
    const auto addExport = [&](const char* name, const QString& text, ExportFormat format) {
        QAction* const action = AddAction(menu, name, text, "file");
        connect(action, &QAction::triggered, this, [this, format] { Export(format); });
    };
    add("mnuPrint", tr("&Print..."), "print", QKeySequence::Print, &frmReportViewer::Print);
    add("mnuPrintPage", tr("Print &This Page"), "", {}, &frmReportViewer::PrintPage);
    add("mnuPageSetup", tr("Page Set&up..."), "settings", Qt::CTRL | Qt::SHIFT | Qt::Key_P,
        &frmReportViewer::OpenPageSetup);
    menu.addSeparator();
    addExport("mnuExportHTML", tr("Export to &HTML..."), ExportFormat::Html);
    addExport("mnuExportPDF", tr("Export to P&DF..."), ExportFormat::Pdf);
    addExport("mnuExportRTF", tr("Export to &RTF..."), ExportFormat::Rtf);
    QAction* const open = AddAction(menu, "mnuOpenExport", tr("&Open Exported Files"));
    open->setCheckable(true);
    open->setToolTip(tr("Open a file in its program once it is written"));
    // Each run reads the setting again.
    connect(open, &QAction::triggered, this, &SaveOpenExport);
    menu.addSeparator();
    QAction* const catalogue = AddAction(menu, "mnuReports", tr("R&eports..."), "reports");
    connect(catalogue, &QAction::triggered, this, [] {
        if (CatalogueOpener()) core::forms::Guarded(CatalogueOpener());
    });
    QAction* const close = AddAction(menu, "mnuClose", tr("&Close"));
    close->setShortcut(QKeySequence::Close);
    connect(close, &QAction::triggered, this, &frmReportViewer::close);
}

void frmReportViewer::FillViewMenu(QMenu& menu) {
    QAction* const toolbar = AddAction(menu, "mnuViewToolbar", tr("&Tool Bar"));
    QAction* const navbar = AddAction(menu, "mnuViewNavbar", tr("&Page Thumbnails"));
    toolbar->setCheckable(true);
    navbar->setCheckable(true);
    connect(toolbar, &QAction::toggled, this, &frmReportViewer::SetToolbar);
    connect(navbar, &QAction::toggled, this, &frmReportViewer::SetNavbar);
    menu.addSeparator();

    const auto add = [&](const char* name, const QString& text, const char* icon,
                         const QKeySequence& key, const std::function<void()>& work) {
        QAction* const action = AddAction(menu, name, text, icon);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, work);
    };
    auto& view = *ui_->vp;
    const auto turn = [&view](int pages) { view.GoToPage(view.CurrentPage() + pages); };
    add("mnuFirst", tr("&First Page"), "first", Qt::CTRL | Qt::Key_Home,
        [&view] { view.GoToPage(0); });
    add("mnuPrevious", tr("P&revious Page"), "back", Qt::ALT | Qt::Key_Left, [turn] { turn(-1); });
    add("mnuNext", tr("&Next Page"), "forward", Qt::ALT | Qt::Key_Right, [turn] { turn(1); });
    add("mnuLast", tr("&Last Page"), "last", Qt::CTRL | Qt::Key_End,
        [&view] { view.GoToPage(view.PageCount() - 1); });
    add("mnuGoTo", tr("&Go to Page"), "", Qt::CTRL | Qt::Key_G, [this] {
        ui_->txtPage->setFocus(Qt::ShortcutFocusReason);
        ui_->txtPage->selectAll();
    });
    menu.addSeparator();
    add("mnuZoomIn", tr("Zoom &In"), "zoomin", QKeySequence::ZoomIn, [&view] { view.ZoomIn(); });
    add("mnuZoomOut", tr("Zoom &Out"), "zoomout", QKeySequence::ZoomOut,
        [&view] { view.ZoomOut(); });
    add("mnuFitWidth", tr("Fit &Width"), "fitwidth", Qt::CTRL | Qt::Key_1,
        [&view] { view.SetFit(PageFit::Width); });
    add("mnuFitPage", tr("Fit P&age"), "fitpage", Qt::CTRL | Qt::Key_2,
        [&view] { view.SetFit(PageFit::Page); });
    add("mnuFullSize", tr("Full &Size"), "", Qt::CTRL | Qt::Key_0, [&view] { view.SetZoom(100); });
    menu.addSeparator();
    add("mnuFind", tr("Fin&d..."), "search", QKeySequence::Find, [this] {
        ui_->txtFind->setFocus(Qt::ShortcutFocusReason);
        ui_->txtFind->selectAll();
    });
    add("mnuFindNext", tr("Find Ne&xt"), "", QKeySequence::FindNext,
        [this] { Find(platform::SearchDirection::Forward); });
    add("mnuFindPrevious", tr("Find Pre&vious"), "", QKeySequence::FindPrevious,
        [this] { Find(platform::SearchDirection::Backward); });
    menu.addSeparator();
    add("mnuRefresh", tr("Refres&h"), "refresh", QKeySequence::Refresh,
        [this] { RunReport(reportIndex_); });
}

void frmReportViewer::SetUpToolBar() {
    const auto add = [this](const char* word, const char* action, const QString& text) {
        auto* const button = new QToolButton(ui_->toolBar);
        button->setDefaultAction(Action(action));
        button->setText(text);
        button->setProperty("tag", QLatin1String(word));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        ui_->toolBar->addWidget(button);
        // The menu's text would be restored whenever the action changes.
        connect(Action(action), &QAction::changed, button,
                [button, text] { button->setText(text); });
    };
    add("PRINT", "mnuPrint", tr("Print"));
    ui_->toolBar->addSeparator();
    add("EXPORTHTML", "mnuExportHTML", tr("HTML"));
    add("EXPORTPDF", "mnuExportPDF", tr("PDF"));
    add("EXPORTRTF", "mnuExportRTF", tr("RTF"));
    ui_->toolBar->addSeparator();
    add("REPORT", "mnuReports", tr("Reports"));
    add("HELP", "mnuHelp", tr("Help"));
}

QString frmReportViewer::ReasonToWait() const {
    switch (work_) {
        case Work::Layout:
            return tr("The report is still being laid out");
        case Work::Export:
            return tr("The report is being exported");
        case Work::Print:
            return tr("The report is being printed");
        case Work::None:
            break;
    }
    return {};
}

void frmReportViewer::EnableActions() {
    // An empty reason enables a command, and its tooltip is its own text.
    const auto allow = [this](const char* name, const QString& reason) {
        Action(name)->setEnabled(reason.isEmpty());
        Action(name)->setToolTip(reason);
    };
    const QString wait = ReasonToWait();
    QString whole = wait;
    if (whole.isEmpty() && !document_.IsComplete())
        whole = tr("The report is incomplete: press F5 to run it again");
    for (const char* name : {"mnuPrint", "mnuExportHTML", "mnuExportPDF", "mnuExportRTF"})
        allow(name, whole);
    // A page is complete even if the report isn't.
    allow("mnuPrintPage", wait.isEmpty() && document_.PageCount() > 0 ? wait : whole);
    const QString none = reportIndex_ == 0 ? tr("No report has been run") : QString();
    allow("mnuPageSetup", none.isEmpty() ? wait : none);
    allow("mnuRefresh", none);
    allow("mnuReports", CatalogueOpener() ? QString() : tr("There is no report catalogue"));
    ui_->fraChoices->setEnabled(work_ == Work::None);
}

void frmReportViewer::SetNavbar(bool shown) {
    ui_->NavBar->setVisible(shown);
    Action("mnuViewNavbar")->setChecked(shown);
    if (core::Preferences().ViewNavbar == shown) return;
    core::Preferences().ViewNavbar = shown;
    core::SavePreferences();
}

void frmReportViewer::SetToolbar(bool shown) {
    ui_->toolBar->setVisible(shown);
    Action("mnuViewToolbar")->setChecked(shown);
    if (core::Preferences().ViewToolbar == shown) return;
    core::Preferences().ViewToolbar = shown;
    core::SavePreferences();
}

} // namespace reports::screens
