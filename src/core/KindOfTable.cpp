#include "core/KindOfTable.h"

#include <array>

#include "core/RecordKinds.h"
#include "platform/values/Text.h"

namespace core {

namespace {

struct KindTable {
    RecordKind kind;
    std::string_view table;
};

constexpr std::array<KindTable, 26> kTables = {{
    {kAccount, "Account"},
    {kLease, "Lease"},
    {kMortgage, "Mortgage"},
    {kAlert, "Alerts"},
    {kTenant, "Tenant"},
    {kWorkOrder, "WorkOrder"},
    {kIncident, "Incident"},
    {kAppliance, "Appliance"},
    {kRoom, "Room"},
    {kTransaction, "Transactions"},
    {kMileage, "Mileage"},
    {kOwner, "OwnerLink"},
    {kDeposit, "Deposit"},
    {kTransCategory, "TransCategory"},
    {kManager, "ManagerLink"},
    {kAutoEvent, "AutoEvent"},
    {kContent, "Content"},
    {kSvcContract, "SvcContract"},
    {kMortgageLog, "MortgageLog"},
    {kConfiguration, "Configuration"},
    {kWorkOrderHistory, "WOItem"},
    {kFileObject, "FileObject"},
    {kDocument, "Doc"},
    {kBuilding, "Building"},
    {kUnit, "Unit"},
    {kRentLog, "RentLog"},
}};

} // namespace

RecordKind KindOfTable(std::string_view table) {
    for (const KindTable& known : kTables) {
        if (platform::EqualIgnoringCase(known.table, table)) return known.kind;
    }
    return kNone;
}

} // namespace core
