#include "core/ListStatements.h"

#include "core/Configuration.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/dialect/Compiler.h"

namespace core {

namespace {

constexpr std::string_view kLeases =
    "SELECT Tenant.LastName +', '+ Building.Address +' '+ Unit.Unit AS [Description], "
    "IdLease AS ID "
    "FROM Lease,Building,Unit,Tenant "
    "WHERE (Lease.IdUnit=Unit.IdUnit) "
    "AND (Unit.IdBuilding=Building.IdBuilding) "
    "AND (Lease.IdTenant=Tenant.IdTenant) ";

// In two halves, since a text joined with null is null; a null initial isn't <> ''.
constexpr std::string_view kTenants =
    "SELECT LastName +', '+ FirstName +' '+ Initial AS Description, IdTenant AS ID "
    "FROM Tenant WHERE (Initial <> '') "
    "UNION "
    "SELECT LastName +', '+ FirstName AS Description, IdTenant AS ID "
    "FROM Tenant WHERE (Initial IS Null OR Initial = '') ";

constexpr std::string_view kUnitsOfAllBuildings =
    "SELECT Building.Address + ' ' + Unit.Unit AS Description, Unit.IdUnit AS ID "
    "FROM Unit, Building WHERE (Unit.IdBuilding = Building.IdBuilding) ";

ListStatement Accounts(int kind) {
    std::string sql = "SELECT ShowAs AS Description, IdAccount AS ID FROM Account ";
    const auto type = AccountTypeOfKind(kind);
    if (!type.empty() && !Config().ShowAllAccounts) {
        AddWhere(sql, "AccountType = " + platform::dialect::QuoteText(type));
    }
    return {"[ No Account Selected ]", sql};
}

ListStatement Buildings(std::string_view filter) {
    std::string sql = "SELECT Address AS Description, IdBuilding AS ID FROM Building ";
    if (!filter.empty()) AddWhere(sql, filter);
    return {"[ No Building Selected ]", sql};
}

std::string WithParent(std::string_view sql, std::int32_t parentId) {
    return std::string(sql) + std::to_string(parentId);
}

} // namespace

ListStatement ListStatementOf(int kind, std::int32_t parentId) {
    switch (kind) {
        case kAccount:
        case kOwner:
        case kManager:
        case kBuildingOwnerAccount:
        case kBuildingManagerAccount:
        case kVendorAccount:
        case kBankAccount:
        case kInsuranceAccount:
        case kMortgageeAccount:
        case kUtilityAccount:
            return Accounts(kind);
        case kLease:
            return {"[ No Lease Selected ]", std::string(kLeases)};
        case kMortgage:
            // By account number here, though a mortgage's description is another field.
            return {"[ No Mortgage Selected ]",
                    "SELECT AccountNumber AS Description, IdMortgage AS ID FROM Mortgage "};
        case kTenant:
            return {"[ No Tenant Selected ]", std::string(kTenants)};
        case kWorkOrder:
            return {"[ No Work Order Selected ]",
                    "SELECT ShortDesc AS Description, IdWorkOrder AS ID FROM WorkOrder "};
        case kAppliance:
            return {"[ No Appliance Selected ]",
                    WithParent("SELECT ApplianceType AS Description, IdAppliance AS ID "
                               "FROM Appliance WHERE IdUnit = ",
                               parentId)};
        case kRoom:
            return {"[ No Room Selected ]",
                    WithParent("SELECT RoomType AS Description, IdRoom AS ID "
                               "FROM Room WHERE IdUnit = ",
                               parentId)};
        case kUser:
            return {"[ No User Selected ]",
                    "SELECT UserName AS Description, IdUser AS ID FROM Users "};
        case kTransCategory:
            return {"", "SELECT Category AS Description, IEN AS ID FROM TransCategory "};
        case kBuilding:
            return Buildings("");
        case kMultiUnitBuilding:
            return Buildings("Multi = True");
        case kSingleUnitBuilding:
            return Buildings("Multi = False");
        case kUnit:
            if (parentId == 0) return {"[ No Unit Selected ]", std::string(kUnitsOfAllBuildings)};
            return {"[ No Unit Selected ]",
                    WithParent("SELECT Unit.Unit AS Description, Unit.IdUnit AS ID "
                               "FROM Unit WHERE Unit.IdBuilding = ",
                               parentId)};
        default:
            return {};
    }
}

} // namespace core
