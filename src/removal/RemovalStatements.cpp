#include "removal/RemovalStatements.h"

#include <array>

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

struct LoneKind {
    std::int16_t kind;
    std::string_view statement;
};

// Records that nothing depends on.
constexpr std::array<LoneKind, 14> kLoneKinds = {{
    {core::kIncident, "DELETE * FROM Incident WHERE IdIncident = ?"},
    {core::kRoom, "DELETE * FROM Room WHERE IdRoom = ?"},
    {core::kMileage, "DELETE * FROM Mileage WHERE IdMileage = ?"},
    {core::kManager, "DELETE * FROM ManagerLink WHERE IdManagerLink = ?"},
    {core::kAutoEvent, "DELETE * FROM AutoEvent WHERE IdAutoEvent = ?"},
    {core::kContent, "DELETE * FROM Content WHERE IdContent = ?"},
    {core::kSvcContract, "DELETE * FROM SvcContract WHERE IdSvcContract = ?"},
    {core::kMortgageLog, "DELETE * FROM MortgageLog WHERE IdMortgageLog = ?"},
    {core::kWorkOrderHistory, "DELETE * FROM WOItem WHERE IdWOItem = ?"},
    {core::kFileObject, "DELETE * FROM FileObject WHERE IdFileObject = ?"},
    {core::kDocument, "DELETE * FROM Doc WHERE IdDoc = ?"},
    {core::kRentLog, "DELETE * FROM RentLog WHERE IdRentLog = ?"},
    {kAnalysis, "DELETE * FROM Analysis WHERE IdAnalysis = ?"},
    {kNoteAnalysis, "DELETE * FROM DiscNote WHERE IdDiscNote = ?"},
}};

} // namespace

std::span<const std::string_view> StatementsToRemove(std::int16_t kind) {
    switch (kind) {
        case core::kAccount:
            return kOfAccount;
        case core::kTenant:
            return kOfTenant;
        case core::kMortgage:
            return kOfMortgage;
        case core::kWorkOrder:
            return kOfWorkOrder;
        case core::kAppliance:
            return kOfAppliance;
        case core::kBuilding:
            return kOfBuilding;
        case core::kUnit:
            return kOfUnit;
        default:
            break;
    }
    for (const LoneKind& lone : kLoneKinds) {
        if (lone.kind == kind) return {&lone.statement, 1};
    }
    return {};
}

} // namespace removal
