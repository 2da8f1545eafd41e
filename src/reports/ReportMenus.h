#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"
#include "reports/ReportDef.h"

namespace reports {

/// Returns the form on which records of a kind are edited; None for a kind without reports.
RecordForm FormOfKind(core::RecordKind recordKind);

/// An item of a report menu: its caption, with "&" before its key, and the report's number.
struct ReportMenuItem {
    std::string caption;
    int index = 0;
};

/// The entries of a record form's report menus.
struct ReportMenu {
    /// The report that the form's print command prints; 0 if there is none and the command is
    /// disabled.
    int print = 0;
    std::vector<ReportMenuItem> items;
};

/// Returns the reports of a form, numbered "(&1) Rent roll", in catalogue order. `mark` is inserted
/// between the number and the description, for a menu with the reports of several forms.
ReportMenu ReportsOf(RecordForm form, std::string_view mark = {});
/// Returns the receipts of a form: "Print Rent receipt".
std::vector<ReportMenuItem> ReceiptsOf(RecordForm form);

/// Returns the reports of buildings and units as the main window's menu lists them.
ReportMenu ReportsOfBuilding();
ReportMenu ReportsOfSelectedUnit();

} // namespace reports
