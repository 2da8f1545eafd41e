#include "leases/LeaseEditor.h"

#include <fmt/core.h>

#include "core/Codes.h"
#include "core/Configuration.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/ChargeDeposits.h"
#include "leases/LeaseStatus.h"
#include "leases/RentCodes.h"
#include "leases/RentLog.h"
#include "leases/mLease.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Date;
using platform::Interval;
using platform::Recordset;

namespace {

void OpenLease(Recordset& row, std::int32_t idLease) {
    row = core::Write("SELECT * FROM Lease WHERE IdLease = ?", {idLease});
}

void BeginLease(Recordset& row) {
    SetBeginning(row);
    row["DateCreated"].Set(platform::Today().ToText());
    row["RentAccount"].Set(core::Config().DefaultRentAccount);
    row["DepositAccount"].Set(core::Config().DefaultDepositAccount);
    ChargeDeposits(row["IdLease"].AsLong(), row["IdUnit"].AsLong());
}

} // namespace

Date FirstOfNextMonth() {
    const Date today = platform::Today();
    return DateAdd(Interval::Month, 1, Date(today.Year(), today.Month(), 1));
}

void ProposeLease(Recordset& row) {
    row = core::NewRow("Lease");
    for (const auto* date : {"DateActive", "DateRenewed", "DateNextDue"})
        row[date].Set(FirstOfNextMonth().ToText());
    row["DateVacating"].Set("");
    const core::ConfigValues& config = core::Config();
    row["TermType"].Set(config.TermType);
    row["Term"].Set(config.Term);
    row["ExpireOption"].Set(config.ExpireOption);
    row["Discount"].Set(config.Discount);
    row["DiscountDays"].Set(config.DiscountDays);
    row["OneTimeFee"].Set(config.OneTimeFee);
    row["OneTimeDays"].Set(config.OneTimeDays);
    row["DailyFee"].Set(config.DailyFee);
    row["DailyDays"].Set(config.DailyDays);
    row["EvictDays"].Set(config.EvictDays);
    row["BreakFee"].Set(config.BreakFee);
    row["NoticeDays"].Set(config.NoticeDays);
}

std::vector<std::string> LeaseErrors(const LeaseEntry& entry) {
    std::vector<std::string> lines;
    if (entry.idUnit == 0) lines.emplace_back("A unit must be specified.");
    if (entry.idTenant == 0) lines.emplace_back("A tenant must be specified.");
    if (entry.rent.IsZero()) lines.emplace_back("Rent rate should not be zero.");
    // Without it nothing could be charged or fall due.
    if (!entry.hasNextDue) lines.emplace_back("A next due date must be specified.");
    return lines;
}

void CheckParties(std::int32_t idUnit, std::int32_t idTenant) {
    const bool hasUnit = core::RecordExists(core::kUnit, idUnit);
    if (hasUnit && core::RecordExists(core::kTenant, idTenant)) return;
    throw platform::ConflictError(
        fmt::format("The {} was deleted in the meantime. The lease was not saved.",
                    hasUnit ? "tenant" : "unit"));
}

void SetBeginning(Recordset& row) {
    row["DateRenewed"].Set(row["DateActive"].Value());
    row["DateVacating"].Set("");
    row["Status"].Set(core::kLeasePending);
}

void SaveLease(Recordset& row, LeaseAge age) {
    platform::UnitOfWork unit(core::App().Connection);
    const bool isNew = age == LeaseAge::New;
    if (isNew) {
        CheckParties(IdOf(row["IdUnit"]), IdOf(row["IdTenant"]));
        BeginLease(row);
    }
    SetLeaseStatus(row, platform::Today(), isNew ? StatusChange::Force : StatusChange::IfDifferent);
    // The balances on the screen are rounded, and may be out of date.
    SetLeaseBalances(row);
    SetRentStatus(row);
    row.Update();
    unit.Commit();
}

LeaseAvailability AvailabilityOf(LeaseAge age, std::string_view status) {
    LeaseAvailability can;
    if (age == LeaseAge::New) {
        can.runs = false;
        can.dateRenewed = false;
        can.dateVacating = false;
        can.parties = true;
    } else if (status == core::kLeasePending) {
        can.breakLease = true;
        can.dateVacating = false;
        can.blankVacating = true;
    } else if (status == core::kLeaseNotice) {
        can.cancelNotice = true;
        can.dateActive = false;
    } else if (IsOver(status)) {
        can.renewLease = true;
        can.dateActive = false;
    } else if (IsCharged(status)) {
        can.breakLease = true;
        can.giveNotice = true;
        can.dateActive = false;
        can.dateVacating = false;
        can.blankVacating = true;
    }
    return can;
}

void ReadBalances(Recordset& row, std::int32_t idLease) {
    OpenLease(row, idLease);
    if (!row.Eof()) SetLeaseBalances(row);
}

void StoreBalances(std::int32_t idLease) {
    Recordset row;
    ReadBalances(row, idLease);
    if (row.Eof()) return;
    if (row.Update()) core::NotifyAll(core::kLease, core::kRecordsChanged, idLease);
}

} // namespace leases
