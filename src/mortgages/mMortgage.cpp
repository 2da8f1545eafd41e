#include "mortgages/mMortgage.h"

#include <algorithm>
#include <optional>

#include "core/Codes.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/TakenBack.h"
#include "mortgages/ExtraPrincipal.h"
#include "mortgages/MortgageLog.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"

namespace mortgages {

using platform::Date;
using platform::Recordset;
using platform::UnitOfWork;

namespace {

/// Sets a text only if it differs: on most days nothing in a row changes, and an unchanged field
/// isn't written.
void SetIfChanged(Recordset& row, std::string_view field, std::string_view text) {
    auto stored = row[field];
    if (stored.IsNull() || stored.AsText() != text) stored.Set(text);
}

bool HasBalance(Recordset& row) {
    return row["CurrentPV"].IsNull() || row["CurrentPV"].AsDouble() != 0;
}

/// Returns whether the loan is paid off: no balance, and no due date to count charges from.
bool IsPaidOff(Recordset& row) {
    return row["NextDue"].IsBlank() && !HasBalance(row);
}

void LeaveOutTakenBack(std::int32_t idMortgage, std::vector<Charge>& charges) {
    core::TakenBack taken(core::kMortgage, idMortgage);
    std::erase_if(charges, [&](const Charge& charge) {
        return taken.Has(PostingOf(charge.flags), charge.date);
    });
}

std::vector<core::PostedRow> RowsOf(const std::vector<Charge>& charges, std::int32_t firstId) {
    std::vector<core::PostedRow> rows;
    rows.reserve(charges.size());
    for (const Charge& charge : charges) {
        rows.push_back({charge.date, WordsOf(charge.flags).category, charge.Total(),
                        ReasonOf(charge), firstId++});
    }
    return rows;
}

} // namespace

std::vector<core::PostedRow> UpdateMortgage(Recordset& row, RunMode mode) {
    const std::int32_t idMortgage = row["IdMortgage"].AsLong();
    const RunTerms terms = RunTerms::Read(row);
    const Date from = terms.Start(mode);
    const Date to = terms.Target(mode, platform::Today());
    std::vector<Charge> charges;
    if (to > from && !IsPaidOff(row)) {
        clsMortgage mortgage;
        mortgage.LoadRS(row);
        mortgage.ReCalc();
        charges = WalkMortgage(mortgage, terms, from, to);
        LeaveOutTakenBack(idMortgage, charges);
        LeaveOutBooked(idMortgage, charges);
    }

    std::optional<UnitOfWork> unit;
    if (!charges.empty()) unit.emplace(core::App().Connection);
    const std::int32_t first = WriteCharges(idMortgage, charges);
    SetIfChanged(row, "DateUpdated", std::max(from, to).ToText());
    SetMortgageStatus(row);
    row.Update();
    if (unit) unit->Commit();
    return RowsOf(charges, first);
}

void UpdateMortgageById(std::int32_t idMortgage, RunMode mode) {
    UnitOfWork unit(core::App().Connection);
    Recordset row = core::Write("SELECT * FROM Mortgage WHERE IdMortgage = ?", {idMortgage});
    if (row.Eof()) return;
    UpdateMortgage(row, mode);
    unit.Commit();
}

void SetMortgageStatus(Recordset& row) {
    const bool paid = !HasBalance(row);
    SetIfChanged(row, "Status", paid ? core::kMortgageClosed : core::kMortgageCurrent);
    if (paid) {
        SetIfChanged(row, "PmtStatus", core::kPaymentNone);
        return;
    }
    if (row["NextDue"].IsBlank()) return;
    const int daysPast = platform::Today().Serial() - row["NextDue"].AsDate().Serial();
    const int grace = ShortOf(row["GracePeriod"]);
    const std::string_view late = daysPast > grace ? core::kPaymentLate : core::kPaymentDue;
    SetIfChanged(row, "PmtStatus", daysPast > 0 ? late : core::kPaymentOk);
}

} // namespace mortgages
