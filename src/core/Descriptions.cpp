#include "core/Descriptions.h"

#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/values/Text.h"

namespace core {

namespace {

/// What yields the description of the record whose identifier is the parameter (every one of them).
std::string_view DescriptionSql(int kind, bool shortForm) {
    switch (kind) {
        case kAccount:
        case kOwner:
        case kManager:
        case kBuildingOwnerAccount:
        case kBuildingManagerAccount:
            return "SELECT ShowAs AS Description FROM Account WHERE IdAccount = ?";
        case kLease:
            return "SELECT Tenant.LastName +', '+ Building.Address +' '+ Unit.Unit "
                   "AS [Description] "
                   "FROM Lease,Building,Unit,Tenant "
                   "WHERE (Lease.IdLease = ?) "
                   "AND (Lease.IdUnit=Unit.IdUnit) "
                   "AND (Unit.IdBuilding=Building.IdBuilding) "
                   "AND (Lease.IdTenant=Tenant.IdTenant)";
        case kMortgage:
            return "SELECT Description FROM Mortgage WHERE IdMortgage = ?";
        case kTenant:
            // In two halves, since a text joined with null is null; a null initial isn't <> ''.
            return "SELECT LastName +', '+ FirstName +' '+ Initial AS Description "
                   "FROM Tenant WHERE (Initial <> '') AND (IdTenant = ?) "
                   "UNION "
                   "SELECT LastName +', '+ FirstName AS Description "
                   "FROM Tenant WHERE (Initial IS Null OR Initial = '') AND (IdTenant = ?)";
        case kAppliance:
            return "SELECT Manufacturer +' '+ ApplianceType AS Description "
                   "FROM Appliance WHERE IdAppliance = ?";
        case kRoom:
            return "SELECT RoomType AS Description FROM Room WHERE IdRoom = ?";
        case kBuilding:
            if (shortForm) {
                return "SELECT Address AS Description FROM Building "
                       "WHERE (Building.IdBuilding = ?)";
            }
            return "SELECT Address +', '+ City +' '+ State AS Description FROM Building "
                   "WHERE (Building.IdBuilding = ?)";
        case kUnit:
            return "SELECT Building.Address +' '+ Unit.Unit AS Description "
                   "FROM Building, Unit "
                   "WHERE (Unit.IdUnit = ?) "
                   "AND (Unit.IdBuilding = Building.IdBuilding)";
        default:
            return {};
    }
}

} // namespace

std::string GetDescription(int kind, std::int32_t id, std::size_t maxLength, bool shortForm) {
    const std::string_view sql = DescriptionSql(kind, shortForm);
    if (sql.empty()) return {};
    const auto line = kind == kTenant ? LookUp(sql, {id, id}) : LookUp(sql, {id});
    if (!line) return {};
    const std::string text = line->AsText();
    return maxLength == 0 ? text : platform::LeftCharacters(text, maxLength);
}

} // namespace core
