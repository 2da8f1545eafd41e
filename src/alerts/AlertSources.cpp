#include "alerts/AlertSources.h"

#include <optional>

#include <fmt/core.h>

#include "core/Codes.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace alerts {

using platform::Date;
using platform::DateAdd;
using platform::Interval;
using platform::Recordset;

namespace {

constexpr std::string_view kLeasePicture = "LEASE";
constexpr std::string_view kMortgagePicture = "MORTGAGE";
constexpr std::string_view kWorkOrderPicture = "WORKORDER";
constexpr std::string_view kBuildingPicture = "PROPERTY";
constexpr std::string_view kMessagePicture = "AUTOEVENT";

/// Returns a lease's tenant and place: "Smith at 12 Elm Street", with the unit if it has a name.
std::string LeasePlace(Recordset& row) {
    std::string place = fmt::format("{} at {}", TextOf(row["LastName"]), TextOf(row["Address"]));
    const std::string unit = TextOf(row["Unit"]);
    if (!unit.empty()) place += " unit " + unit;
    return place;
}

/// Returns the days until `due` if it is in the future and within the window, otherwise nothing.
std::optional<int> DaysWithin(Date due, int window) {
    const int days = DateDiff(Interval::Day, platform::Today(), due);
    if (days < 1 || days > window) return std::nullopt;
    return days;
}

/// Calls `add` for each row of a statement; skips a statement that can't be opened. Throws Error
/// with the record's name, as `name` gives it, in front of the reason if a row can't be read.
template <class Name, class Add>
void ForEachRow(std::string_view sql, Name name, Add add) {
    Recordset rows;
    core::OpenRecordset(rows, sql, platform::CursorMode::ReadOnly);
    if (!rows.IsOpen()) return;
    for (; !rows.Eof(); rows.MoveNext()) {
        try {
            add(rows);
        } catch (const platform::Error& failure) {
            throw platform::Error(fmt::format("{}: {}", name(rows), failure.what()));
        }
    }
}

std::string LeaseName(Recordset& row) {
    return "Lease " + LeasePlace(row);
}

std::string MortgageName(Recordset& row) {
    return "Mortgage account # " + TextOf(row["AccountNumber"]);
}

std::string BuildingName(Recordset& row) {
    return "Building " + TextOf(row["Address"]);
}

std::string WorkOrderName(Recordset& row) {
    return "Work Order " + TextOf(row["ShortDesc"]);
}

std::string MessageName(Recordset& /*row*/) {
    return "Message";
}

void AddBuildingDates(std::vector<AlertItem>& items, std::string_view field, int window,
                      std::string_view what) {
    const std::string sql =
        fmt::format("SELECT IdBuilding, Address, {0} FROM Building WHERE {0} <> ''", field);
    ForEachRow(sql, BuildingName, [&](Recordset& row) {
        if (const auto days = DaysWithin(row[field].AsDate(), window)) {
            items.push_back({core::kBuilding, row["IdBuilding"].AsLong(),
                             fmt::format("{} renewal due in {} days for Building {}", what, *days,
                                         TextOf(row["Address"])),
                             kBuildingPicture});
        }
    });
}

} // namespace

void AddLateRent(std::vector<AlertItem>& items) {
    ForEachRow(
        "SELECT Lease.IdLease, Lease.RentStatus, Tenant.LastName, Building.Address, Unit.Unit "
        "FROM Lease,Building,Unit,Tenant "
        "WHERE (Lease.IdUnit=Unit.IdUnit) AND (Unit.IdBuilding=Building.IdBuilding) "
        "AND (Lease.IdTenant=Tenant.IdTenant) "
        "AND (Lease.RentStatus IN ('Due', 'Late', 'Warning', 'Eviction'))",
        LeaseName, [&](Recordset& row) {
            items.push_back({core::kLease, row["IdLease"].AsLong(),
                             fmt::format("Rent Notice: {} for Lease {}", TextOf(row["RentStatus"]),
                                         LeasePlace(row)),
                             kLeasePicture});
        });
}

void AddLateMortgages(std::vector<AlertItem>& items) {
    ForEachRow(
        "SELECT Mortgage.IdMortgage, Mortgage.AccountNumber, Mortgage.PmtStatus, Account.ShowAs "
        "FROM Mortgage LEFT JOIN Account ON Mortgage.idMortgagee = Account.idAccount "
        "WHERE (Mortgage.PmtStatus = 'Due') OR (Mortgage.PmtStatus = 'Late')",
        MortgageName, [&](Recordset& row) {
            const std::string lender = row["ShowAs"].IsNull() ? "" : " " + row["ShowAs"].AsText();
            items.push_back({core::kMortgage, row["IdMortgage"].AsLong(),
                             fmt::format("Mortgage Payment for{} account # {} is {}", lender,
                                         TextOf(row["AccountNumber"]), TextOf(row["PmtStatus"])),
                             kMortgagePicture});
        });
}

void AddOpenWorkOrders(std::vector<AlertItem>& items) {
    ForEachRow(
        "SELECT IdWorkOrder, ShortDesc FROM WorkOrder "
        "WHERE (Status = 'Open') OR (Status = 'Vendor')",
        WorkOrderName, [&](Recordset& row) {
            items.push_back({core::kWorkOrder, row["IdWorkOrder"].AsLong(),
                             "Open Work Order: " + TextOf(row["ShortDesc"]), kWorkOrderPicture});
        });
}

void AddEscrowReviews(std::vector<AlertItem>& items) {
    ForEachRow(
        "SELECT IdMortgage, AccountNumber, LastEscrowReview FROM Mortgage "
        "WHERE LastEscrowReview <> ''",
        MortgageName, [&](Recordset& row) {
            const Date due = DateAdd(Interval::Year, 1, row["LastEscrowReview"].AsDate());
            if (const auto days = DaysWithin(due, core::Preferences().MtgEscrowDays)) {
                items.push_back(
                    {core::kMortgage, row["IdMortgage"].AsLong(),
                     fmt::format("Escrow review due in {} days for Mortgage account # {}", *days,
                                 TextOf(row["AccountNumber"])),
                     kMortgagePicture});
            }
        });
}

void AddExpiringLeases(std::vector<AlertItem>& items) {
    ForEachRow(
        "SELECT Lease.IdLease, Lease.DateRenewed, Lease.Term, Lease.TermType, Tenant.LastName, "
        "Building.Address, Unit.Unit "
        "FROM Lease,Building,Unit,Tenant "
        "WHERE (Lease.IdUnit=Unit.IdUnit) AND (Unit.IdBuilding=Building.IdBuilding) "
        "AND (Lease.IdTenant=Tenant.IdTenant) AND (Lease.Status = 'Contracted')",
        LeaseName, [&](Recordset& row) {
            const Interval interval = core::FixedTermInterval(TextOf(row["TermType"]));
            const Date due =
                DateAdd(interval, row["Term"].AsInteger(), row["DateRenewed"].AsDate());
            if (const auto days = DaysWithin(due, core::Preferences().LeaseExpiringDays)) {
                items.push_back(
                    {core::kLease, row["IdLease"].AsLong(),
                     fmt::format("Lease expiring in {} days for {}", *days, LeasePlace(row)),
                     kLeasePicture});
            }
        });
}

void AddInsuranceRenewals(std::vector<AlertItem>& items) {
    AddBuildingDates(items, "InsNextDue", core::Preferences().InsRenewDays, "Insurance");
}

void AddAssociationPayments(std::vector<AlertItem>& items) {
    AddBuildingDates(items, "HOANextDue", core::Preferences().HOAPmtDays, "HOA");
}

void AddStoredMessages(std::vector<AlertItem>& items) {
    ForEachRow("SELECT Description FROM Alerts", MessageName, [&](Recordset& row) {
        items.push_back({core::kNone, 0, TextOf(row["Description"]), kMessagePicture});
    });
}

} // namespace alerts
