#include "core/KindTable.h"

#include <array>

#include "core/RecordKinds.h"

namespace core {

namespace {

constexpr std::string_view kNoAccount = "[ No Account Selected ]";
constexpr std::string_view kNoBuilding = "[ No Building Selected ]";
constexpr std::string_view kAccountName =
    "SELECT ShowAs AS Description FROM Account WHERE IdAccount = ?";
constexpr std::string_view kAccountList =
    "SELECT ShowAs AS Description, IdAccount AS ID FROM Account ";
constexpr std::string_view kBuildingList =
    "SELECT Address AS Description, IdBuilding AS ID FROM Building ";

constexpr KindInfo Accounts(RecordKind kind, std::string_view type) {
    return {.kind = kind,
            .plural = "accounts",
            .icon = "accounts",
            .noneRow = kNoAccount,
            .list = kAccountList,
            .offers = kAccount,
            .accountType = type};
}

/// Owners and managers are described as accounts, by the account's identifier.
constexpr KindInfo WithAccountName(KindInfo info) {
    info.description = kAccountName;
    return info;
}

constexpr KindInfo Link(RecordKind kind, std::string_view type, std::string_view plural,
                        std::string_view table, std::string_view key, std::string_view label) {
    KindInfo info = WithAccountName(Accounts(kind, type));
    info.name = RecordKinds.at(static_cast<std::size_t>(kind));
    info.plural = plural;
    info.table = table;
    info.key = key;
    info.label = label;
    return info;
}

constexpr KindInfo Buildings(RecordKind kind, std::string_view condition) {
    return {.kind = kind,
            .plural = "buildings",
            .icon = "property",
            .noneRow = kNoBuilding,
            .list = kBuildingList,
            .offers = kBuilding,
            .condition = condition};
}

constexpr KindInfo Named(RecordKind kind, KindInfo info = {}) {
    info.kind = kind;
    info.name = RecordKinds.at(static_cast<std::size_t>(kind));
    return info;
}

constexpr std::array<KindInfo, 41> kKinds = {{
    Named(kNone),
    Named(kAccount, {.plural = "accounts",
                     .table = "Account",
                     .key = "IdAccount",
                     .icon = "accounts",
                     .description = kAccountName,
                     .noneRow = kNoAccount,
                     .list = kAccountList}),
    Named(kLease, {.plural = "leases",
                   .table = "Lease",
                   .key = "IdLease",
                   .icon = "leases",
                   .description = "SELECT Tenant.LastName +', '+ Building.Address +' '+ Unit.Unit "
                                  "AS [Description] "
                                  "FROM Lease,Building,Unit,Tenant "
                                  "WHERE (Lease.IdLease = ?) "
                                  "AND (Lease.IdUnit=Unit.IdUnit) "
                                  "AND (Unit.IdBuilding=Building.IdBuilding) "
                                  "AND (Lease.IdTenant=Tenant.IdTenant)",
                   .noneRow = "[ No Lease Selected ]",
                   .list = "SELECT Tenant.LastName +', '+ Building.Address +' '+ Unit.Unit "
                           "AS [Description], IdLease AS ID "
                           "FROM Lease,Building,Unit,Tenant "
                           "WHERE (Lease.IdUnit=Unit.IdUnit) "
                           "AND (Unit.IdBuilding=Building.IdBuilding) "
                           "AND (Lease.IdTenant=Tenant.IdTenant) "}),
    // Lists show the account number, descriptions another field.
    Named(kMortgage, {.plural = "mortgages",
                      .table = "Mortgage",
                      .key = "IdMortgage",
                      .icon = "mortgages",
                      .description = "SELECT Description FROM Mortgage WHERE IdMortgage = ?",
                      .noneRow = "[ No Mortgage Selected ]",
                      .list = "SELECT AccountNumber AS Description, IdMortgage AS ID "
                              "FROM Mortgage "}),
    Named(kAlert, {.plural = "alerts", .table = "Alerts", .icon = "alerts"}),
    // In two parts, since text joined with null is null, and a null initial isn't <> ''.
    Named(kTenant,
          {.plural = "tenants",
           .table = "Tenant",
           .key = "IdTenant",
           .icon = "tenants",
           .description = "SELECT LastName +', '+ FirstName +' '+ Initial AS Description "
                          "FROM Tenant WHERE (Initial <> '') AND (IdTenant = ?) "
                          "UNION "
                          "SELECT LastName +', '+ FirstName AS Description "
                          "FROM Tenant WHERE (Initial IS Null OR Initial = '') AND (IdTenant = ?)",
           .noneRow = "[ No Tenant Selected ]",
           .list = "SELECT LastName +', '+ FirstName +' '+ Initial AS Description, "
                   "IdTenant AS ID "
                   "FROM Tenant WHERE (Initial <> '') "
                   "UNION "
                   "SELECT LastName +', '+ FirstName AS Description, IdTenant AS ID "
                   "FROM Tenant WHERE (Initial IS Null OR Initial = '') "}),
    Named(kWorkOrder, {.plural = "work orders",
                       .table = "WorkOrder",
                       .key = "IdWorkOrder",
                       .icon = "workorders",
                       .label = "SELECT ShortDesc FROM WorkOrder WHERE IdWorkOrder = ?",
                       .noneRow = "[ No Work Order Selected ]",
                       .list = "SELECT ShortDesc AS Description, IdWorkOrder AS ID "
                               "FROM WorkOrder "}),
    Named(kIncident, {.plural = "incidents",
                      .table = "Incident",
                      .key = "IdIncident",
                      .label = "SELECT Description FROM Incident WHERE IdIncident = ?"}),
    Named(kAppliance, {.plural = "appliances",
                       .table = "Appliance",
                       .key = "IdAppliance",
                       .description = "SELECT Manufacturer +' '+ ApplianceType AS Description "
                                      "FROM Appliance WHERE IdAppliance = ?",
                       .noneRow = "[ No Appliance Selected ]",
                       .listOfParent = "SELECT ApplianceType AS Description, IdAppliance AS ID "
                                       "FROM Appliance WHERE IdUnit = "}),
    Named(kRoom, {.plural = "rooms",
                  .table = "Room",
                  .key = "IdRoom",
                  .description = "SELECT RoomType AS Description FROM Room WHERE IdRoom = ?",
                  .noneRow = "[ No Room Selected ]",
                  .listOfParent = "SELECT RoomType AS Description, IdRoom AS ID "
                                  "FROM Room WHERE IdUnit = "}),
    Named(kTransaction, {.plural = "transactions",
                         .table = "Transactions",
                         .key = "IdTransaction",
                         .icon = "financial",
                         .label = "SELECT DateEffective & ', ' & Description FROM Transactions "
                                  "WHERE IdTransaction = ?"}),
    Named(kUser, {.plural = "users",
                  .table = "Users",
                  .key = "IdUser",
                  .noneRow = "[ No User Selected ]",
                  .list = "SELECT UserName AS Description, IdUser AS ID FROM Users "}),
    Named(kMileage, {.plural = "mileage entries", .table = "Mileage", .key = "IdMileage"}),
    Named(kActivities),
    Named(kInvoices),
    Link(kOwner, "Building Owner", "owners", "OwnerLink", "IdOwnerLink",
         "SELECT Account.ShowAs FROM OwnerLink, Account WHERE (OwnerLink.IdOwnerLink = ?) "
         "AND (OwnerLink.IdAccount = Account.IdAccount)"),
    Named(kDeposit, {.plural = "deposits", .table = "Deposit", .key = "IdDeposit"}),
    // The lists' identifier is the class of the category, not the record's.
    Named(kTransCategory,
          {.plural = "transaction categories",
           .table = "TransCategory",
           .list = "SELECT Category AS Description, IEN AS ID FROM TransCategory "}),
    Link(kManager, "Building Manager", "managers", "ManagerLink", "IdManagerLink",
         "SELECT Account.ShowAs FROM ManagerLink, Account WHERE (ManagerLink.IdManagerLink = ?) "
         "AND (ManagerLink.IdAccount = Account.IdAccount)"),
    Named(kAutoEvent, {.plural = "automated events",
                       .table = "AutoEvent",
                       .key = "IdAutoEvent",
                       .icon = "autoevent",
                       .label = "SELECT Description FROM AutoEvent WHERE IdAutoEvent = ?"}),
    Named(kContent, {.plural = "contents",
                     .table = "Content",
                     .key = "IdContent",
                     .label = "SELECT Description FROM Content WHERE IdContent = ?"}),
    Named(RecordKind{21}),
    Named(kSvcContract,
          {.plural = "service contracts",
           .table = "SvcContract",
           .key = "IdSvcContract",
           .label = "SELECT Account.ShowAs & ', ' & SvcContract.SvcType FROM SvcContract, Account "
                    "WHERE (SvcContract.IdVendor = Account.IdAccount) AND (IdSvcContract = ?)"}),
    Named(kMortgageLog, {.plural = "mortgage charges",
                         .table = "MortgageLog",
                         .key = "IdMortgageLog",
                         .label = "SELECT Description FROM MortgageLog WHERE IdMortgageLog = ?"}),
    Named(kConfiguration, {.plural = "settings", .table = "Configuration", .icon = "settings"}),
    Named(kWorkOrderHistory, {.plural = "work order history entries",
                              .table = "WOItem",
                              .key = "IdWOItem",
                              .label = "SELECT Description FROM WOItem WHERE IdWOItem = ?"}),
    Named(kFileObject, {.plural = "files",
                        .table = "FileObject",
                        .key = "IdFileObject",
                        .icon = "file",
                        .label = "SELECT Description FROM FileObject WHERE IdFileObject = ?"}),
    Named(kDocument, {.plural = "documents",
                      .table = "Doc",
                      .key = "IdDoc",
                      .label = "SELECT Description FROM Doc WHERE IdDoc = ?"}),
    Named(kBuilding,
          {.plural = "buildings",
           .table = "Building",
           .key = "IdBuilding",
           .icon = "property",
           .description = "SELECT Address +', '+ City +' '+ State AS Description FROM Building "
                          "WHERE (Building.IdBuilding = ?)",
           .shortDescription = "SELECT Address AS Description FROM Building "
                               "WHERE (Building.IdBuilding = ?)",
           .noneRow = kNoBuilding,
           .list = kBuildingList}),
    Named(kUnit, {.plural = "units",
                  .table = "Unit",
                  .key = "IdUnit",
                  .icon = "units",
                  .description = "SELECT Building.Address +' '+ Unit.Unit AS Description "
                                 "FROM Building, Unit "
                                 "WHERE (Unit.IdUnit = ?) "
                                 "AND (Unit.IdBuilding = Building.IdBuilding) ",
                  .noneRow = "[ No Unit Selected ]",
                  .list = "SELECT Building.Address + ' ' + Unit.Unit AS Description, "
                          "Unit.IdUnit AS ID "
                          "FROM Unit, Building WHERE (Unit.IdBuilding = Building.IdBuilding) ",
                  .listOfParent = "SELECT Unit.Unit AS Description, Unit.IdUnit AS ID "
                                  "FROM Unit WHERE Unit.IdBuilding = "}),
    Named(kRentLog,
          {.plural = "rent charges",
           .table = "RentLog",
           .key = "IdRentLog",
           .label = "SELECT DatePosted & ', ' & Category FROM RentLog WHERE IdRentLog = ?"}),
    WithAccountName(Accounts(kBuildingOwnerAccount, "Building Owner")),
    WithAccountName(Accounts(kBuildingManagerAccount, "Building Manager")),
    Accounts(kVendorAccount, "Vendor"),
    Accounts(kBankAccount, "Bank"),
    Accounts(kInsuranceAccount, "Insurance"),
    Accounts(kMortgageeAccount, "Mortgagee"),
    Buildings(kMultiUnitBuilding, "Multi = True"),
    Buildings(kSingleUnitBuilding, "Multi = False"),
    {.kind = kUnitWithBuilding, .plural = "units"},
    Accounts(kUtilityAccount, "Utility"),
}};

constexpr bool AreInOrder() {
    for (std::size_t kind = 0; kind < kKinds.size(); ++kind) {
        if (kKinds.at(kind).kind != static_cast<RecordKind>(kind)) return false;
    }
    return true;
}
static_assert(AreInOrder(), "a kind's row is found by its number");

} // namespace

const KindInfo& InfoOf(RecordKind kind) {
    static constexpr KindInfo kUnknown;
    const auto number = static_cast<std::uint16_t>(kind); // a negative one is beyond the end
    return number < kKinds.size() ? kKinds.at(number) : kUnknown;
}

std::span<const KindInfo> AllKinds() {
    return kKinds;
}

} // namespace core
