#include "kestrom/Reports.h"

#include "core/Globals.h"
#include "core/ShippedReports.h"
#include "platform/dialogs/Dialogs.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "reports/ReportMenus.h"
#include "reports/screens/RecordReports.h"

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

} // namespace

void LoadReports() {
    core::InstallShippedReports(core::ShippedReportsFolder(), core::App().ReportPath);
    reports::LoadReportList();
    reports::screens::RegisterReportMenus();
}

void AddReportCommands(shell::screens::Commands& commands) {
    commands.Add(QStringLiteral("mnuPrint"), PrintSelected);
}

} // namespace kestrom
