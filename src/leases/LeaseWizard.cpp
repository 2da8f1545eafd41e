#include "leases/LeaseWizard.h"

#include "core/Codes.h"
#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "leases/ChargeDeposits.h"
#include "leases/LeaseEditor.h"
#include "leases/RentCodes.h"
#include "leases/mLease.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"

namespace leases {

using platform::Recordset;

namespace {

constexpr std::string_view kNotes = "Added by Lease Wizard";

/// Opens a new row of a table under a new id.
core::RowToWrite AddRow(std::string_view table, std::string_view idField) {
    core::RowToWrite row(table, idField);
    row["Hide"].Set(false);
    row["Selected"].Set(false);
    return row;
}

/// Writes the row and returns its id.
std::int32_t Keep(core::RowToWrite& added) {
    core::RepairNulls(added.row, nullptr);
    added.row.Update();
    return added.id;
}

std::int32_t AddUnit(const LeaseWizardEntry& entry) {
    core::RowToWrite building = AddRow("Building", "IdBuilding");
    building["Multi"].Set(false);
    building["Address"].Set(entry.address);
    building["City"].Set(entry.city);
    building["County"].Set(entry.county);
    building["State"].Set(entry.state);
    building["Zip"].Set(entry.zip);
    building["Notes"].Set(kNotes);
    const std::int32_t idBuilding = Keep(building);

    core::RowToWrite unit = AddRow("Unit", "IdUnit");
    unit["IdBuilding"].Set(idBuilding);
    unit["Status"].Set(core::kUnitLeased);
    unit["Rent"].Set(entry.rent);
    return Keep(unit);
}

std::int32_t AddTenant(const LeaseWizardEntry& entry) {
    core::RowToWrite tenant = AddRow("Tenant", "IdTenant");
    tenant["Status"].Set(core::kTenantCurrent);
    tenant["LastName"].Set(entry.lastName);
    tenant["FirstName"].Set(entry.firstName);
    tenant["Notes"].Set(kNotes);
    return Keep(tenant);
}

/// Sets what every lease of the wizard starts with, whatever the entries.
void SetSettings(Recordset& row) {
    const core::ConfigValues& config = core::Config();
    row["ExpireOption"].Set(config.ExpireOption);
    row["DepositAccount"].Set(config.DefaultDepositAccount);
    row["RentAccount"].Set(config.DefaultRentAccount);
    row["Subs"].Set(false);
    row["Discount"].Set(config.Discount);
    row["DiscountDays"].Set(config.DiscountDays);
    row["DailyFee"].Set(config.DailyFee);
    row["DailyDays"].Set(config.DailyDays);
    row["EvictDays"].Set(config.EvictDays);
    row["BreakFee"].Set(config.BreakFee);
    row["NoticeDays"].Set(config.NoticeDays);
    row["LastPaid"].Set(platform::Currency());
    row["Option"].Set(false);
    row["Notes"].Set(kNotes);
}

void SetTerms(Recordset& row, const LeaseWizardEntry& entry) {
    for (const auto* date : {"DateActive", "DateRenewed"})
        row[date].Set(entry.startDate.ToText());
    const platform::Date firstDue = entry.firstDue.IsSet() ? entry.firstDue : entry.startDate;
    row["DateNextDue"].Set(firstDue.ToText());
    row["Status"].Set(core::kLeasePending);
    row["TermType"].Set(entry.termType);
    row["Term"].Set(entry.term);
    row["Rent"].Set(entry.rent);
    row["OneTimeFee"].Set(entry.lateFee);
    row["OneTimeDays"].Set(entry.lateDays);
}

std::int32_t AddLease(const LeaseWizardEntry& entry, std::int32_t idUnit, std::int32_t idTenant) {
    core::RowToWrite lease = AddRow("Lease", "IdLease");
    Recordset& row = lease.row;
    row["IdUnit"].Set(idUnit);
    row["IdTenant"].Set(idTenant);
    row["DateCreated"].Set(platform::Today().ToText());
    SetTerms(row, entry);
    SetSettings(row);
    core::RepairNulls(row, nullptr);
    UpdateLease(row, WalkMode::Reprocess);
    return lease.id;
}

void TellScreens(const LeaseWizardEntry& entry) {
    const auto tell = [](core::RecordKind kind) {
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    };
    if (entry.newProperty) tell(core::kBuilding);
    tell(core::kUnit);
    tell(core::kTenant);
    tell(core::kLease);
}

} // namespace

std::vector<std::string> LeaseWizardErrors(LeaseWizardStep step, const LeaseWizardEntry& entry) {
    const auto isBlank = [](const std::string& text) { return platform::Trim(text).empty(); };
    switch (step) {
        case LeaseWizardStep::Property:
            if (entry.newProperty && isBlank(entry.address)) {
                return {"A valid address has not been entered."};
            }
            if (!entry.newProperty && entry.idUnit == 0) {
                return {"A valid property has not been selected."};
            }
            return {};
        case LeaseWizardStep::Tenant:
            if (entry.newTenant && isBlank(entry.lastName)) {
                return {"A valid last name has not been entered."};
            }
            if (!entry.newTenant && entry.idTenant == 0) {
                return {"A valid tenant has not been selected."};
            }
            return {};
        case LeaseWizardStep::Summary:
            if (!entry.startDate.IsSet()) return {"A valid start date has not been selected."};
            return {};
        case LeaseWizardStep::Introduction:
        case LeaseWizardStep::Terms:
            break;
    }
    return {};
}

LeaseTerms EnteredTerms(const LeaseWizardEntry& entry) {
    Recordset row = core::NewRow("Lease");
    SetTerms(row, entry);
    SetSettings(row);
    return LeaseTerms::Read(row);
}

std::int32_t FinishLeaseWizard(const LeaseWizardEntry& entry) {
    platform::UnitOfWork unit(core::App().Connection);
    const std::int32_t idUnit = entry.newProperty ? AddUnit(entry) : entry.idUnit;
    const std::int32_t idTenant = entry.newTenant ? AddTenant(entry) : entry.idTenant;
    CheckParties(idUnit, idTenant);
    const std::int32_t idLease = AddLease(entry, idUnit, idTenant);
    ChargeDeposits(idLease, idUnit);
    StoreBalances(idLease);
    unit.Commit();
    TellScreens(entry);
    return idLease;
}

} // namespace leases
