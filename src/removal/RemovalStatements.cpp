#include "removal/RemovalStatements.h"

#include <algorithm>
#include <array>
#include <span>

#include <fmt/core.h>

#include "core/KindTable.h"
#include "core/RecordKinds.h"

namespace removal {

namespace {

// Transactions outlive their parties: the texts keep the name, the link becomes 0.
constexpr std::array<std::string_view, 5> kOfAccount = {
    "UPDATE AutoEvent SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 1) ",
    "UPDATE AutoEvent SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 1) ",
    "UPDATE Transactions SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 1) ",
    "UPDATE Transactions SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 1) ",
    "DELETE * FROM Account WHERE IdAccount = ?",
};

constexpr std::array<std::string_view, 7> kOfTenant = {
    "UPDATE AutoEvent SET IdTenant = 0 WHERE IdTenant = ?",
    "UPDATE AutoEvent SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 5) ",
    "UPDATE AutoEvent SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 5) ",
    "UPDATE Transactions SET CreditId = 0 WHERE (CreditId = ?) AND (CreditType = 5) ",
    "UPDATE Transactions SET DebitId = 0 WHERE (DebitId = ?) AND (DebitType = 5) ",
    "DELETE * FROM Incident WHERE IdTenant = ?",
    "DELETE * FROM Tenant WHERE IdTenant = ?",
};

// A posted row of the log stays: it belongs to its transaction.
constexpr std::array<std::string_view, 3> kOfMortgage = {
    "UPDATE AutoEvent SET IdMortgage = 0 WHERE IdMortgage = ?",
    "DELETE * FROM MortgageLog WHERE (IdMortgage = ?) AND (IdTransaction = 0)",
    "DELETE * FROM Mortgage WHERE IdMortgage = ?",
};

constexpr std::array<std::string_view, 3> kOfWorkOrder = {
    "UPDATE AutoEvent SET IdWorkOrder = 0 WHERE IdWorkOrder = ?",
    "DELETE * FROM WoItem WHERE IdWorkOrder = ?",
    "DELETE * FROM WorkOrder WHERE IdWorkOrder = ?",
};

constexpr std::array<std::string_view, 3> kOfAppliance = {
    "UPDATE SvcContract SET IdAppliance = 0 WHERE IdAppliance = ?",
    "UPDATE WorkOrder SET IdAppliance = 0 WHERE IdAppliance = ?",
    "DELETE * FROM Appliance WHERE IdAppliance = ?",
};

constexpr std::array<std::string_view, 6> kOfBuilding = {
    "UPDATE AutoEvent SET IdBuilding = 0 WHERE IdBuilding = ?",
    "DELETE * FROM OwnerLink WHERE IdBuilding = ?",
    "DELETE * FROM ManagerLink WHERE IdBuilding = ?",
    "DELETE * FROM SvcContract WHERE IdBuilding = ?",
    "DELETE * FROM Deposit WHERE IdBuilding = ?",
    "DELETE * FROM Building WHERE IdBuilding = ?",
};

constexpr std::array<std::string_view, 7> kOfUnit = {
    "UPDATE AutoEvent SET IdUnit = 0 WHERE IdUnit = ?",
    "DELETE * FROM Deposit WHERE IdUnit = ?",
    "DELETE * FROM Room WHERE IdUnit = ?",
    "DELETE * FROM Appliance WHERE IdUnit = ?",
    "DELETE * FROM Content WHERE IdUnit = ?",
    "DELETE * FROM StatusLog WHERE IdUnit = ?",
    "DELETE * FROM Unit WHERE IdUnit = ?",
};

struct Statements {
    std::int16_t kind;
    std::span<const std::string_view> sql;
};

constexpr std::array<Statements, 7> kStatements = {{
    {core::kAccount, kOfAccount},
    {core::kTenant, kOfTenant},
    {core::kMortgage, kOfMortgage},
    {core::kWorkOrder, kOfWorkOrder},
    {core::kAppliance, kOfAppliance},
    {core::kBuilding, kOfBuilding},
    {core::kUnit, kOfUnit},
}};

/// Kinds whose records are removed by deleting their own row.
constexpr std::array<std::int16_t, 12> kLoneKinds = {
    core::kIncident,         core::kRoom,       core::kMileage,     core::kManager,
    core::kAutoEvent,        core::kContent,    core::kSvcContract, core::kMortgageLog,
    core::kWorkOrderHistory, core::kFileObject, core::kDocument,    core::kRentLog};

std::string DeleteRow(std::string_view table, std::string_view key) {
    return fmt::format("DELETE * FROM {} WHERE {} = ?", table, key);
}

} // namespace

std::vector<std::string> StatementsToRemove(std::int16_t kind) {
    for (const Statements& statements : kStatements) {
        if (statements.kind == kind) return {statements.sql.begin(), statements.sql.end()};
    }
    if (kind == kAnalysis) return {DeleteRow("Analysis", "IdAnalysis")};
    if (kind == kNoteAnalysis) return {DeleteRow("DiscNote", "IdDiscNote")};
    if (std::ranges::find(kLoneKinds, kind) == kLoneKinds.end()) return {};
    const core::KindInfo& info = core::InfoOf(kind);
    return {DeleteRow(info.table, info.key)};
}

} // namespace removal
