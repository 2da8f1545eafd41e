#include <array>

#include <fmt/core.h>

#include "exchange/CheckParts.h"

namespace exchange {

namespace {

/// A field that holds the id of a record in another table.
struct Link {
    std::string_view table;
    std::string_view key; ///< of the table that has the field
    std::string_view field;
    std::string_view parent;
    std::string_view parentKey;
    Severity severity;
    std::string_view where = {};
};

constexpr Severity kFault = Severity::Fault;
// Deleting a record leaves these fields unchanged: they say what a row once referred to.
constexpr Severity kNote = Severity::Note;

constexpr auto kLinks = std::to_array<Link>({
    {"Unit", "IdUnit", "IdBuilding", "Building", "IdBuilding", kFault},
    {"Room", "IdRoom", "IdUnit", "Unit", "IdUnit", kFault},
    {"Content", "IdContent", "IdUnit", "Unit", "IdUnit", kFault},
    {"Appliance", "IdAppliance", "IdUnit", "Unit", "IdUnit", kFault},
    {"Lease", "IdLease", "IdUnit", "Unit", "IdUnit", kFault},
    {"Lease", "IdLease", "IdTenant", "Tenant", "IdTenant", kFault},
    {"OwnerLink", "IdOwnerLink", "IdBuilding", "Building", "IdBuilding", kFault},
    {"OwnerLink", "IdOwnerLink", "IdAccount", "Account", "IdAccount", kFault},
    {"ManagerLink", "IdManagerLink", "IdBuilding", "Building", "IdBuilding", kFault},
    {"ManagerLink", "IdManagerLink", "IdAccount", "Account", "IdAccount", kFault},
    {"SvcContract", "IdSvcContract", "IdBuilding", "Building", "IdBuilding", kFault},
    {"Deposit", "IdDeposit", "IdBuilding", "Building", "IdBuilding", kFault},
    {"Deposit", "IdDeposit", "IdUnit", "Unit", "IdUnit", kFault},
    {"Incident", "IdIncident", "IdTenant", "Tenant", "IdTenant", kFault},
    {"WOItem", "IdWOItem", "IdWorkOrder", "WorkOrder", "IdWorkOrder", kFault},
    {"RentLog", "IdRentLog", "IdLease", "Lease", "IdLease", kFault, "child.IdTransaction = 0"},
    {"RentLog", "IdRentLog", "IdTransaction", "Transactions", "IdTransaction", kFault},
    {"MortgageLog", "IdMortgageLog", "IdMortgage", "Mortgage", "IdMortgage", kFault,
     "child.IdTransaction = 0"},
    {"MortgageLog", "IdMortgageLog", "IdTransaction", "Transactions", "IdTransaction", kFault},
    {"Transactions", "IdTransaction", "DebitId", "Account", "IdAccount", kFault,
     "child.DebitType = 1"},
    {"Transactions", "IdTransaction", "DebitId", "Tenant", "IdTenant", kFault,
     "child.DebitType = 5"},
    {"Transactions", "IdTransaction", "CreditId", "Account", "IdAccount", kFault,
     "child.CreditType = 1"},
    {"Transactions", "IdTransaction", "CreditId", "Tenant", "IdTenant", kFault,
     "child.CreditType = 5"},
    {"AutoEvent", "IdAutoEvent", "DebitId", "Account", "IdAccount", kFault, "child.DebitType = 1"},
    {"AutoEvent", "IdAutoEvent", "DebitId", "Tenant", "IdTenant", kFault, "child.DebitType = 5"},
    {"AutoEvent", "IdAutoEvent", "CreditId", "Account", "IdAccount", kFault,
     "child.CreditType = 1"},
    {"AutoEvent", "IdAutoEvent", "CreditId", "Tenant", "IdTenant", kFault, "child.CreditType = 5"},
    {"AutoEvent", "IdAutoEvent", "IdLease", "Lease", "IdLease", kFault},
    {"AutoEvent", "IdAutoEvent", "IdTenant", "Tenant", "IdTenant", kFault},
    {"AutoEvent", "IdAutoEvent", "IdBuilding", "Building", "IdBuilding", kFault},
    {"AutoEvent", "IdAutoEvent", "IdUnit", "Unit", "IdUnit", kFault},
    {"AutoEvent", "IdAutoEvent", "IdMortgage", "Mortgage", "IdMortgage", kFault},
    {"AutoEvent", "IdAutoEvent", "IdWorkOrder", "WorkOrder", "IdWorkOrder", kFault},

    {"RentLog", "IdRentLog", "IdLease", "Lease", "IdLease", kNote, "child.IdTransaction <> 0"},
    {"MortgageLog", "IdMortgageLog", "IdMortgage", "Mortgage", "IdMortgage", kNote,
     "child.IdTransaction <> 0"},
    {"Mortgage", "IdMortgage", "IdBuilding", "Building", "IdBuilding", kNote},
    {"Mortgage", "IdMortgage", "IdMortgagor", "Account", "IdAccount", kNote},
    {"Mortgage", "IdMortgage", "IdMortgagee", "Account", "IdAccount", kNote},
    {"Mortgage", "IdMortgage", "IdEscrow", "Account", "IdAccount", kNote},
    {"Lease", "IdLease", "RentAccount", "Account", "IdAccount", kNote},
    {"Lease", "IdLease", "DepositAccount", "Account", "IdAccount", kNote},
    {"Transactions", "IdTransaction", "IdLease", "Lease", "IdLease", kNote},
    // A rent payment stores its payer in IdTenant, even if the payer is an account.
    {"Transactions", "IdTransaction", "IdTenant", "Tenant", "IdTenant", kNote,
     "(child.IdTenant <> child.DebitId) OR (child.DebitType <> 1)"},
    {"Transactions", "IdTransaction", "IdBuilding", "Building", "IdBuilding", kNote},
    {"Transactions", "IdTransaction", "IdUnit", "Unit", "IdUnit", kNote},
    {"Transactions", "IdTransaction", "IdMortgage", "Mortgage", "IdMortgage", kNote},
    {"Transactions", "IdTransaction", "IdWorkOrder", "WorkOrder", "IdWorkOrder", kNote},
    {"Transactions", "IdTransaction", "IdMileage", "Mileage", "IdMileage", kNote},
    {"Mileage", "IdMileage", "IdBuilding", "Building", "IdBuilding", kNote},
    {"Mileage", "IdMileage", "IdWorkOrder", "WorkOrder", "IdWorkOrder", kNote},
    {"WorkOrder", "IdWorkOrder", "IdUnit", "Unit", "IdUnit", kNote},
    {"WorkOrder", "IdWorkOrder", "IdRoom", "Room", "IdRoom", kNote},
    {"WorkOrder", "IdWorkOrder", "IdAppliance", "Appliance", "IdAppliance", kNote},
    {"WorkOrder", "IdWorkOrder", "IdVendor", "Account", "IdAccount", kNote},
    {"WorkOrder", "IdWorkOrder", "IdOwner", "Account", "IdAccount", kNote},
    {"SvcContract", "IdSvcContract", "IdAppliance", "Appliance", "IdAppliance", kNote},
    {"SvcContract", "IdSvcContract", "IdVendor", "Account", "IdAccount", kNote},
    {"Appliance", "IdAppliance", "IdVendor", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "HOAAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "InsAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "SecAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "ElectricAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "WaterAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "GasAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "SewageAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "CableAccount", "Account", "IdAccount", kNote},
    {"Building", "IdBuilding", "TrashAccount", "Account", "IdAccount", kNote},
    {"RentCredit", "IdRentLog", "IdRentLog", "RentLog", "IdRentLog", kNote},
    {"RentCredit", "IdRentLog", "IdOrigin", "RentLog", "IdRentLog", kNote},
    {"RentCredit", "IdRentLog", "IdReturn", "Transactions", "IdTransaction", kNote},
    {"LeaseCredit", "IdLease", "IdLease", "Lease", "IdLease", kNote},
    {"TakenBack", "IdRow", "IdRecord", "Lease", "IdLease", kNote, "child.RecordKind = 2"},
    {"TakenBack", "IdRow", "IdRecord", "Mortgage", "IdMortgage", kNote, "child.RecordKind = 3"},
    {"TakenBack", "IdRow", "IdRecord", "AutoEvent", "IdAutoEvent", kNote, "child.RecordKind = 19"},
});

std::string_view AdviceFor(Severity severity) {
    return severity == Severity::Fault
               ? "Open the record and choose what it belongs to, or delete it."
               : "The record it named was deleted. Nothing needs to be done; choose another one if "
                 "it matters.";
}

} // namespace

void CheckLinks(platform::Connection& books, std::vector<Finding>& findings) {
    for (const Link& link : kLinks) {
        // Books of an earlier version lack some of the tables.
        if (books.Tables().Find(link.table) == nullptr) continue;
        std::string sql = fmt::format(
            "SELECT child.{1} FROM {0} AS child LEFT JOIN {3} AS parent "
            "ON child.{2} = parent.{4} WHERE (child.{2} <> 0) AND (parent.{4} IS Null)",
            link.table, link.key, link.field, link.parent, link.parentKey);
        if (!link.where.empty()) sql += fmt::format(" AND ({})", link.where);
        const FoundIds found = FindIds(books, sql);
        if (!found.Any()) continue;
        findings.push_back(
            {link.severity,
             fmt::format("{} of {} whose {} names no {}: {}", Counted(found.count, "record"),
                         link.table, link.field, link.parent, found.List()),
             std::string(AdviceFor(link.severity))});
    }
}

} // namespace exchange
