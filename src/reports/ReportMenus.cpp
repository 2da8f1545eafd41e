#include "reports/ReportMenus.h"

#include <fmt/core.h>

#include "core/RecordKinds.h"
#include "reports/ReportList.h"

namespace reports {

RecordForm FormOfKind(core::RecordKind recordKind) {
    switch (recordKind) {
        case core::kAccount:
            return RecordForm::Account;
        case core::kBuilding:
            return RecordForm::Building;
        case core::kLease:
            return RecordForm::Lease;
        case core::kMileage:
            return RecordForm::Mileage;
        case core::kMortgage:
            return RecordForm::Mortgage;
        case core::kTenant:
            return RecordForm::Tenant;
        case core::kTransaction:
            return RecordForm::Transaction;
        case core::kUnit:
            return RecordForm::Unit;
        case core::kWorkOrder:
            return RecordForm::WorkOrder;
        default:
            return RecordForm::None;
    }
}

ReportMenu ReportsOf(RecordForm form, std::string_view mark) {
    ReportMenu menu;
    for (int index = 1; index <= ReportCount(); ++index) {
        const ReportDef& report = *FindReport(index);
        if (report.Form != form) continue;
        if (report.Kind == ReportKind::Print && menu.print == 0) menu.print = index;
        if (report.Kind != ReportKind::Report) continue;
        menu.items.push_back(
            {fmt::format("(&{}) {}{}", menu.items.size() + 1, mark, report.Description), index});
    }
    return menu;
}

std::vector<ReportMenuItem> ReceiptsOf(RecordForm form) {
    std::vector<ReportMenuItem> items;
    for (int index = 1; index <= ReportCount(); ++index) {
        const ReportDef& report = *FindReport(index);
        if (report.Form == form && report.Kind == ReportKind::Receipt)
            items.push_back({"Print " + report.Description, index});
    }
    return items;
}

ReportMenu ReportsOfBuilding() {
    return ReportsOf(RecordForm::Building, "[Building] ");
}

ReportMenu ReportsOfSelectedUnit() {
    return ReportsOf(RecordForm::Unit, "[Selected Unit] ");
}

} // namespace reports
