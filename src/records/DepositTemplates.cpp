#include "records/DepositTemplates.h"

#include "core/NotifyAll.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/values/Text.h"
#include "removal/DeleteRecord.h"

namespace records {

std::vector<std::string> DepositErrors(const DepositEntry& entry) {
    std::vector<std::string> lines;
    if (platform::Trim(entry.description).empty()) {
        lines.emplace_back("A description must be entered.");
    }
    if (entry.scope == DepositScope::Building && entry.idBuilding == 0) {
        lines.emplace_back("A building must be selected.");
    }
    if (entry.scope == DepositScope::Unit && entry.idUnit == 0) {
        lines.emplace_back("A unit must be selected.");
    }
    return lines;
}

DepositScope ScopeOf(std::int32_t idBuilding, std::int32_t idUnit) {
    if (idUnit != 0) return DepositScope::Unit;
    return idBuilding != 0 ? DepositScope::Building : DepositScope::Global;
}

platform::Recordset OpenDeposits(DepositScope scope, const DepositPlace& place) {
    std::string sql;
    std::vector<platform::Value> parameters;
    const auto add = [&](DepositScope part, std::string_view select) {
        if (scope != DepositScope::All && scope != part) return;
        sql += (sql.empty() ? "" : "UNION ") + std::string(select);
        if (part == DepositScope::Building) parameters.emplace_back(place.idBuilding);
        if (part == DepositScope::Unit) parameters.emplace_back(place.idUnit);
    };
    add(DepositScope::Global,
        "SELECT IdDeposit, Description, 'Global' AS [Type], Amount "
        "FROM Deposit WHERE (IdUnit = 0) AND (IdBuilding = 0) ");
    // A building or unit that isn't saved yet has the id 0, which a template stores for "every".
    if (place.idBuilding != 0) {
        add(DepositScope::Building,
            "SELECT IdDeposit, Description, 'Building' AS [Type], Amount "
            "FROM Deposit WHERE (IdBuilding = ?) ");
    }
    if (place.idUnit != 0) {
        add(DepositScope::Unit,
            "SELECT IdDeposit, Description, 'Unit' AS [Type], Amount "
            "FROM Deposit WHERE (IdUnit = ?) ");
    }
    if (sql.empty()) return {};
    platform::Recordset rows;
    try {
        rows = core::Read(sql + "ORDER BY Description ", parameters);
    } catch (const std::exception&) {
        return {};
    }
    return rows;
}

bool DeleteDeposit(std::int32_t idDeposit) {
    if (core::Preferences().ConfirmDelete &&
        !removal::AgreedToDelete(
            "Confirm Delete", "Delete selected Deposit?",
            core::ReadValue("SELECT Description FROM Deposit WHERE IdDeposit = ?", {idDeposit}))) {
        return false;
    }
    core::Execute("DELETE * FROM Deposit WHERE (IdDeposit = ?)", {idDeposit});
    core::NotifyAll(core::kDeposit, core::kRecordsChanged, 0);
    return true;
}

} // namespace records
