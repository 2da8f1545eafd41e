#include "kestrom/Reports.h"

#include <QApplication>
#include <QPointer>

#include "platform/dialogs/Dialogs.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/ReportMenus.h"
#include "reports/ViewerSettings.h"
#include "reports/screens/RecordReports.h"
#include "reports/screens/frmPageSetup.h"
#include "reports/screens/frmReportViewer.h"

namespace kestrom {

namespace {

void PrintSelected(const shell::screens::Selection& selection) {
    if (selection.id == 0) return;
    const int index = reports::ReportsOf(reports::FormOfKind(selection.kind)).print;
    if (index == 0) {
        platform::TheDialogs().ShowMessage("No Report Found",
                                           "No default report was found for this record type.",
                                           platform::Icon::Information);
        return;
    }
    reports::PrintReport(selection.id, index);
}

/// Shows the page set-up that reports are laid out for.
void SetUpPages() {
    static QPointer<reports::screens::frmPageSetup> form;
    if (form) return form->activateWindow();
    form = new reports::screens::frmPageSetup(QApplication::activeWindow());
    QObject::connect(form, &QDialog::accepted, form,
                     [] { reports::SavePageSetup(form->Chosen()); });
    form->Setup(reports::ReadPageSetup(), reports::screens::OrientationChoice::Free);
    form->open();
}

} // namespace

void LoadReports() {
    reports::LoadReportList();
    reports::screens::RegisterReportMenus();
    reports::SetReportViewer(reports::screens::ViewReport);
}

void AddReportCommands(shell::screens::Commands& commands) {
    commands.Add(QStringLiteral("mnuPrint"), PrintSelected);
    commands.Add(QStringLiteral("mnuPrintSetup"),
                 [](const shell::screens::Selection&) { SetUpPages(); });
}

} // namespace kestrom
