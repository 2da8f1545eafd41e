#include "removal/RemovalTable.h"

#include <algorithm>
#include <iterator>

#include "core/RecordKinds.h"

namespace removal {

namespace {

// Transactions outlive their parties: the texts keep the name, the link becomes 0.
constexpr std::string_view kBeforeAccount[] = {
    "UPDATE AutoEvent SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 1) ",
    "UPDATE AutoEvent SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 1) ",
    "UPDATE Transactions SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 1) ",
    "UPDATE Transactions SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 1) ",
};

constexpr std::string_view kBeforeTenant[] = {
    "UPDATE AutoEvent SET IdTenant = 0 WHERE IdTenant = ?",
    "UPDATE AutoEvent SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 5) ",
    "UPDATE AutoEvent SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 5) ",
    "UPDATE Transactions SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 5) ",
    "UPDATE Transactions SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 5) ",
    "DELETE * FROM Incident WHERE IdTenant = ?",
};

// A posted row of the log stays: it belongs to its transaction.
constexpr std::string_view kBeforeMortgage[] = {
    "UPDATE AutoEvent SET IdMortgage = 0 WHERE IdMortgage = ?",
    "DELETE * FROM MortgageLog WHERE (IdMortgage = ?) AND (IdTransaction = 0)",
};

constexpr std::string_view kBeforeWorkOrder[] = {
    "UPDATE AutoEvent SET IdWorkOrder = 0 WHERE IdWorkOrder = ?",
    "DELETE * FROM WoItem WHERE IdWorkOrder = ?",
};

constexpr std::string_view kBeforeAppliance[] = {
    "UPDATE SvcContract SET IdAppliance = 0 WHERE IdAppliance = ?",
    "UPDATE WorkOrder SET IdAppliance = 0 WHERE IdAppliance = ?",
};

constexpr std::string_view kBeforeBuilding[] = {
    "UPDATE AutoEvent SET IdBuilding = 0 WHERE IdBuilding = ?",
    "DELETE * FROM OwnerLink WHERE IdBuilding = ?",
    "DELETE * FROM ManagerLink WHERE IdBuilding = ?",
    "DELETE * FROM SvcContract WHERE IdBuilding = ?",
    "DELETE * FROM Deposit WHERE IdBuilding = ?",
};

constexpr std::string_view kBeforeUnit[] = {
    "UPDATE AutoEvent SET IdUnit = 0 WHERE IdUnit = ?",
    "DELETE * FROM Deposit WHERE IdUnit = ?",
    "DELETE * FROM Room WHERE IdUnit = ?",
    "DELETE * FROM Appliance WHERE IdUnit = ?",
    "DELETE * FROM Content WHERE IdUnit = ?",
    "DELETE * FROM StatusLog WHERE IdUnit = ?",
};

constexpr std::string_view kAnalysisRow[] = {"DELETE * FROM Analysis WHERE IdAnalysis = ?"};
constexpr std::string_view kNoteAnalysisRow[] = {"DELETE * FROM DiscNote WHERE IdDiscNote = ?"};

constexpr Counted kCountedOfAccount[] = {
    {"ManagerLink", "IdAccount", " Management Link(s) to Properties"},
    {"OwnerLink", "IdAccount", " Owner Link(s) to Properties"},
};
constexpr Counted kCountedOfTenant[] = {{"Lease", "IdTenant", " Lease(s)"}};
constexpr Counted kCountedOfUnit[] = {
    {"Room", "IdUnit", " Room(s)"},
    {"Appliance", "IdUnit", " Appliance(s)"},
    {"Content", "IdUnit", " Content(s)"},
    {"Lease", "IdUnit", " Lease(s)"},
};

constexpr Children kChildrenOfAccount[] = {
    {core::kOwner, "SELECT IdOwnerLink FROM OwnerLink WHERE IdAccount = ?"},
    {core::kManager, "SELECT IdManagerLink FROM ManagerLink WHERE IdAccount = ?"},
};
constexpr Children kLeasesOfTenant[] = {
    {core::kLease, "SELECT IdLease FROM Lease WHERE IdTenant = ?"}};
constexpr Children kUnitsOfBuilding[] = {
    {core::kUnit, "SELECT IdUnit FROM Unit WHERE IdBuilding = ?"}};
constexpr Children kLeasesOfUnit[] = {{core::kLease, "SELECT IdLease FROM Lease WHERE IdUnit = ?"}};

constexpr KindRemoval kRemovals[] = {
    {.kind = core::kAccount,
     .thing = "account",
     .referred = "account",
     .counted = kCountedOfAccount,
     .children = kChildrenOfAccount,
     .statements = kBeforeAccount},
    {.kind = core::kLease, .question = "Delete selected Lease?"},
    {.kind = core::kMortgage,
     .question = "Delete selected Mortgage?",
     .statements = kBeforeMortgage},
    {.kind = core::kTenant,
     .title = "Confirm Removal",
     .thing = "tenant",
     .referred = "account",
     .counted = kCountedOfTenant,
     .children = kLeasesOfTenant,
     .statements = kBeforeTenant},
    {.kind = core::kWorkOrder,
     .question = "Delete selected work order?",
     .statements = kBeforeWorkOrder},
    {.kind = core::kIncident, .question = "Delete selected Incident?"},
    {.kind = core::kAppliance,
     .question = "Delete selected Appliance?",
     .statements = kBeforeAppliance},
    {.kind = core::kRoom, .question = "Delete selected room?"},
    {.kind = core::kTransaction, .question = "Delete selected transaction?"},
    {.kind = core::kMileage, .question = "Delete selected Mileage entry?"},
    {.kind = core::kOwner, .question = "Delete selected Owner?"},
    {.kind = core::kManager, .question = "Delete selected Manager?"},
    {.kind = core::kAutoEvent, .question = "Delete selected Auto Event?"},
    {.kind = core::kContent, .question = "Delete selected Content?"},
    {.kind = core::kSvcContract, .question = "Delete selected service contract?"},
    {.kind = core::kMortgageLog, .question = "Delete selected Mortgage charge?"},
    {.kind = core::kWorkOrderHistory, .question = "Delete selected Work Order History?"},
    {.kind = core::kFileObject, .question = "Delete selected file link?"},
    {.kind = core::kDocument, .question = "Delete selected Document?"},
    {.kind = core::kBuilding,
     .question =
         "Removing a building will also remove all units associated to the building, and all\n"
         "leases for these units and related records.\n\n"
         "Do you wish to continue?",
     .children = kUnitsOfBuilding,
     .statements = kBeforeBuilding,
     .shownBy = core::kUnit},
    {.kind = core::kUnit,
     .thing = "unit",
     .referred = "unit",
     .counted = kCountedOfUnit,
     .children = kLeasesOfUnit,
     .statements = kBeforeUnit,
     .shownBy = core::kBuilding},
    {.kind = core::kRentLog, .question = "Delete selected item?"},
    {.kind = kAnalysis, .question = "Delete selected Analysis?", .statements = kAnalysisRow},
    {.kind = kNoteAnalysis,
     .question = "Delete selected Note Analysis?",
     .statements = kNoteAnalysisRow},
};

} // namespace

const KindRemoval* RemovalOf(core::RecordKind kind) {
    const auto* const found = std::ranges::find(kRemovals, kind, &KindRemoval::kind);
    return found == std::end(kRemovals) ? nullptr : found;
}

} // namespace removal
