#include "core/Descriptions.h"

#include <algorithm>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/values/Text.h"

namespace core {

namespace {

/// Selects the description of a record, whose identifier is every parameter.
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

/// The kind of the records that a list of `kind` offers.
int KindOffered(int kind) {
    if (!AccountTypeOfKind(kind).empty()) return kAccount;
    if (kind == kMultiUnitBuilding || kind == kSingleUnitBuilding) return kBuilding;
    return kind;
}

std::string_view ExistenceSql(int kind) {
    switch (kind) {
        case kAccount:
            return "SELECT IdAccount FROM Account WHERE IdAccount = ?";
        case kLease:
            return "SELECT IdLease FROM Lease WHERE IdLease = ?";
        case kMortgage:
            return "SELECT IdMortgage FROM Mortgage WHERE IdMortgage = ?";
        case kTenant:
            return "SELECT IdTenant FROM Tenant WHERE IdTenant = ?";
        case kWorkOrder:
            return "SELECT IdWorkOrder FROM WorkOrder WHERE IdWorkOrder = ?";
        case kAppliance:
            return "SELECT IdAppliance FROM Appliance WHERE IdAppliance = ?";
        case kRoom:
            return "SELECT IdRoom FROM Room WHERE IdRoom = ?";
        case kUser:
            return "SELECT IdUser FROM Users WHERE IdUser = ?";
        case kBuilding:
            return "SELECT IdBuilding FROM Building WHERE IdBuilding = ?";
        case kUnit:
            return "SELECT IdUnit FROM Unit WHERE IdUnit = ?";
        default:
            return {};
    }
}

/// The statement of a description that leaves out what is null: '&' joins a null as an empty text.
std::string WithoutNulls(std::string_view sql) {
    std::string joined(sql);
    std::ranges::replace(joined, '+', '&');
    return joined;
}

/// Without the commas and blanks at the end that joined what is left out.
std::string WithoutLooseEnd(std::string text) {
    text.erase(text.find_last_not_of(" ,") + 1);
    return text;
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

bool RecordExists(int kind, std::int32_t id) {
    const std::string_view sql = ExistenceSql(KindOffered(kind));
    return !sql.empty() && App().Connection.Scalar(sql, {id}).has_value();
}

std::string NameOfRecord(int kind, std::int32_t id) {
    if (id == 0) return {};
    const int offered = KindOffered(kind);
    const std::string sql = WithoutNulls(DescriptionSql(offered, true));
    if (!sql.empty()) {
        const auto line = offered == kTenant ? LookUp(sql, {id, id}) : LookUp(sql, {id});
        const std::string text = WithoutLooseEnd(line ? line->AsText() : std::string());
        if (!text.empty()) return text;
    }
    std::string name(RecordKindName(offered));
    name += (name.empty() ? "no. " : " no. ") + std::to_string(id);
    const bool isDeleted = !ExistenceSql(offered).empty() && !RecordExists(offered, id);
    return isDeleted ? name + " (deleted)" : name;
}

} // namespace core
