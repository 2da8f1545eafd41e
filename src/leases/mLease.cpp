#include "leases/mLease.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "core/Codes.h"
#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/TakenBack.h"
#include "leases/Credits.h"
#include "leases/LeaseStatus.h"
#include "leases/RentLog.h"
#include "leases/SettleFromCredit.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Date;
using platform::Recordset;
using platform::UnitOfWork;

namespace {

void SetUnitAndTenant(Recordset& row, std::string_view leaseStatus) {
    const bool over = IsOver(leaseStatus);
    core::SetUnitStatus(row["IdUnit"].AsLong(), over ? core::kUnitAvailable : core::kUnitLeased);
    core::SetTenantStatus(row["IdTenant"].AsLong(),
                          over ? core::kTenantArchived : core::kTenantCurrent);
}

std::string_view RentStatusOf(Recordset& row) {
    const int daysLate = platform::Today().Serial() - row["DateNextDue"].AsDate().Serial();
    const std::int16_t late = platform::Value(daysLate).AsInteger();
    if (!row["Status"].IsNull() && IsOver(row["Status"].AsText())) return core::kPaymentNone;
    if (late > row["EvictDays"].AsInteger()) return core::kRentEviction;
    if (late > row["NoticeDays"].AsInteger()) return core::kRentWarning;
    if (late > row["OneTimeDays"].AsInteger()) return core::kPaymentLate;
    return late < 0 ? core::kPaymentOk : core::kPaymentDue;
}

PostedRows UpdateStored(std::int32_t idLease, WalkMode mode) {
    Recordset row = core::Write("SELECT * FROM Lease WHERE IdLease = ?", {idLease});
    return row.Eof() ? PostedRows() : UpdateLease(row, mode);
}

WalkIds Write(std::int32_t idLease, const LeaseWalk& walk, const std::vector<OpenCredit>& credits) {
    if (!walk.payments.empty()) return WriteSettledWalk(idLease, walk, credits);
    WalkIds ids{std::vector<std::int32_t>(walk.charges.size()), {}};
    std::iota(ids.charges.begin(), ids.charges.end(), WriteCharges(idLease, walk.charges));
    return ids;
}

/// Returns charges and payments from credit, day by day.
PostedRows RowsOf(const LeaseWalk& walk, const WalkIds& ids) {
    PostedRows rows;
    rows.reserve(walk.charges.size() + walk.payments.size());
    for (std::size_t i = 0; i < walk.charges.size(); ++i) {
        const Charge& charge = walk.charges[i];
        rows.push_back({charge.date, CategoryOf(charge.kind), charge.amount, ReasonOf(charge),
                        ids.charges[i]});
    }
    for (std::size_t i = 0; i < walk.payments.size(); ++i) {
        const CreditPayment& payment = walk.payments[i];
        rows.push_back({payment.day,
                        kPaidFromCredit,
                        payment.Total(),
                        {.posting = core::Posting::FromCredit, .due = payment.day},
                        ids.payments[i]});
    }
    std::ranges::stable_sort(rows, {}, &core::PostedRow::date);
    return rows;
}

} // namespace

PostedRows UpdateLease(Recordset& row, WalkMode mode, CreditUse use) {
    const std::int32_t idLease = row["IdLease"].AsLong();
    std::optional<UnitOfWork> unit;
    std::vector<OpenCredit> credits;
    // From here on, no other program can take a row back that would be posted again here.
    if (mode != WalkMode::CatchUp) unit.emplace(core::App().Connection);
    if (mode == WalkMode::CatchUp && use == CreditUse::AsLeaseSays && SettlesCharges(idLease)) {
        // Read inside the unit of work, so that no other program spends them too.
        unit.emplace(core::App().Connection);
        credits = ReadCredits(idLease);
    }
    core::TakenBack taken(core::kLease, idLease);
    const LeaseWalk walk =
        WalkLease(LeaseTerms::Read(row), mode, platform::Today(), CreditPurse(credits),
                  [&](ChargeKind kind, Date day) { return taken.Has(PostingOf(kind), day); });

    // On most days only the lease's own row is written, in one statement.
    if (!unit && (!walk.charges.empty() || !walk.statuses.empty()))
        unit.emplace(core::App().Connection);
    for (const std::string& word : walk.statuses)
        SetUnitAndTenant(row, word);
    if (!walk.statuses.empty()) row["Status"].Set(walk.terms.status);
    const WalkIds ids = Write(idLease, walk, credits);
    if (!walk.payments.empty()) row["DateNextDue"].Set(walk.terms.dateNextDue.Get().ToText());
    row["DateUpdated"].Set(walk.terms.dateUpdated.Get().ToText());
    if (walk.renewed) row["DateRenewed"].Set(walk.terms.dateRenewed.Get().ToText());
    SetLeaseBalances(row);
    SetRentStatus(row);
    if (row.Update()) core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
    if (!walk.payments.empty()) core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    if (unit) unit->Commit();
    return RowsOf(walk, ids);
}

PostedRows UpdateLeaseById(std::int32_t idLease, WalkMode mode) {
    if (idLease == 0) return {};
    try {
        return UpdateStored(idLease, mode);
    } catch (const platform::ConflictError&) {
        // Another program has written the lease since it was read; inside the unit of work none
        // can.
        UnitOfWork unit(core::App().Connection);
        PostedRows rows = UpdateStored(idLease, mode);
        unit.Commit();
        return rows;
    }
}

bool SetLeaseStatus(Recordset& row, Date onDate, StatusChange change) {
    LeaseTerms terms = LeaseTerms::Read(row);
    const StatusStep step = StepLeaseStatus(terms, onDate, change == StatusChange::Force);
    if (step.renewed) row["DateRenewed"].Set(terms.dateRenewed.Get().ToText());
    if (step.statusSet) {
        SetUnitAndTenant(row, terms.status);
        row["Status"].Set(terms.status);
    }
    return step.Changed();
}

void SetRentStatus(Recordset& row) {
    try {
        row["RentStatus"].Set(RentStatusOf(row));
    } catch (const platform::Error&) {
        // A lease whose dates can't be read keeps its rent status.
    }
}

void AdvanceNextDue(std::int32_t idLease, OptionCredit credit, Broadcast broadcast) {
    UnitOfWork unit(core::App().Connection);
    Recordset row = core::Write(
        "SELECT IdLease, TermType, DateNextDue, Option, OptionCredit FROM Lease "
        "WHERE IdLease = ?",
        {idLease});
    if (row.Eof()) return;
    const std::string termType = TextOf(row["TermType"]);
    const Date nextDue = DateAdd(TermInterval(termType), 1, row["DateNextDue"].AsDate());
    row["DateNextDue"].Set(nextDue.ToText());
    row.Update();
    if (credit == OptionCredit::Add && row["Option"].AsBoolean())
        WriteOptionCredit(idLease, platform::Today(), row["OptionCredit"].AsCurrency());
    unit.Commit();
    if (broadcast == Broadcast::Yes) core::NotifyAll(core::kLease, core::kRecordsChanged, idLease);
}

books::References GetLeaseLinks(std::int32_t idLease) {
    books::References links;
    links.idLease = idLease;
    if (idLease == 0) return links;
    core::GetLeaseParties(idLease, links.idUnit, links.idTenant);
    links.idBuilding = core::GetUnitBuilding(links.idUnit);
    return links;
}

} // namespace leases
