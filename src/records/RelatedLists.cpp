#include "records/RelatedLists.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"

namespace records {

namespace {

constexpr std::array kShowsLeases = {core::kLease, core::kTenant};
constexpr std::array kShowsAppliances = {core::kAppliance};
constexpr std::array kShowsRooms = {core::kRoom};
constexpr std::array kShowsContent = {core::kContent};
constexpr std::array kShowsManagers = {core::kManager, core::kAccount};
constexpr std::array kShowsOwners = {core::kOwner, core::kAccount};
constexpr std::array kShowsMortgages = {core::kMortgage, core::kAccount};
constexpr std::array kShowsContracts = {core::kSvcContract, core::kAccount, core::kAppliance};
constexpr std::array kShowsIncidents = {core::kIncident};
constexpr std::array kShowsHistory = {core::kWorkOrderHistory};

constexpr std::array kUnitLists = {
    RelatedList{"Leases", "frmUnit.Lease", core::kLease, kShowsLeases,
                "SELECT Lease.IdLease, Lease.Status AS [Status], "
                "Tenant.LastName & ', ' & Tenant.FirstName & ' ' & Tenant.Initial AS [Tenant], "
                "DateValue(Lease.DateActive) AS [Date Active], "
                "Lease.Rent AS [Rent], "
                "Lease.RentStatus AS [Rent Status], "
                "Lease.Option AS [Option] "
                "FROM Lease LEFT JOIN Tenant ON Lease.IdTenant = Tenant.IdTenant "
                "WHERE Lease.IdUnit = ? ORDER BY DateValue(Lease.DateActive) DESC"},
    RelatedList{"Appliances", "frmBuilding.Appliance", core::kAppliance, kShowsAppliances,
                "SELECT IdAppliance, ApplianceType AS [Appliance Type], Manufacturer, Model, "
                "PurchaseDate AS [Purchase Date], Color "
                "FROM Appliance WHERE IdUnit = ? ORDER BY ApplianceType"},
    RelatedList{"Rooms", "frmBuilding.Room", core::kRoom, kShowsRooms,
                "SELECT IdRoom, RoomType AS [Room Type], Flooring, Dimensions, Phone, Cable "
                "FROM Room WHERE IdUnit = ? ORDER BY RoomType"},
    RelatedList{"Content", "frmBuilding.Content", core::kContent, kShowsContent,
                "SELECT IdContent, Description,Manufacturer, Model, SN, Value "
                "FROM Content WHERE IdUnit = ? ORDER BY Description"},
};

constexpr std::array kBuildingLists = {
    RelatedList{"Owners", "frmBuilding.OwnerLink", core::kOwner, kShowsOwners,
                "SELECT OwnerLink.IdOwnerLink, Account.ShowAs AS [Owner], "
                "Account.AccountNumber AS [Account Number], "
                "OwnerLink.[Percent] AS [Percent], OwnerLink.IsPrimary AS [Primary] "
                "FROM OwnerLink LEFT JOIN Account ON OwnerLink.IdAccount = Account.IdAccount "
                "WHERE OwnerLink.IdBuilding = ? ORDER BY Account.ShowAs"},
    RelatedList{"Managers", "frmBuilding.ManagerLink", core::kManager, kShowsManagers,
                "SELECT ManagerLink.IdManagerLink, Account.ShowAs AS [Manager], "
                "Account.Phone AS [Phone], "
                "ManagerLink.DateStart AS [Start Date], ManagerLink.TermType AS [Term Type], "
                "ManagerLink.Term AS [Term], ManagerLink.FeeType AS [Fee Type], "
                "ManagerLink.OnSite AS [On Site] "
                "FROM ManagerLink LEFT JOIN Account ON ManagerLink.IdAccount = Account.IdAccount "
                "WHERE ManagerLink.IdBuilding = ? ORDER BY Account.ShowAs"},
    RelatedList{"Mortgages", "frmBuilding.Mortgage", core::kMortgage, kShowsMortgages,
                "SELECT Mortgage.IdMortgage, Mortgage.Status AS [Status], "
                "AcctMee.ShowAs AS [Lender], AcctMor.ShowAs AS [Borrower], "
                "Mortgage.PmtStatus AS [Payment Status], "
                "Mortgage.CurrentPV AS [Balance], "
                "Mortgage.CurrentI * 100 AS [I Rate], "
                "Mortgage.CurrentPmt AS [Payment] "
                "FROM (Mortgage "
                "LEFT JOIN Account AS AcctMee ON Mortgage.IdMortgagee = AcctMee.IdAccount) "
                "LEFT JOIN Account AS AcctMor ON Mortgage.IdMortgagor = AcctMor.IdAccount "
                "WHERE Mortgage.IdBuilding = ? ORDER BY Mortgage.Status DESC, AcctMee.ShowAs"},
    RelatedList{"Svc Contracts", "frmBuilding.SvcContract", core::kSvcContract, kShowsContracts,
                "SELECT SvcContract.IdSvcContract, Account.ShowAs AS [Vendor], "
                "SvcContract.SvcTerm AS [Term], SvcContract.SvcTermType AS [Term Type], "
                "SvcContract.SvcType AS [Service] "
                "FROM SvcContract LEFT JOIN Account ON SvcContract.IdVendor = Account.IdAccount "
                "WHERE (SvcContract.IdBuilding = ?) OR (SvcContract.IdAppliance IN "
                "(SELECT Appliance.IdAppliance FROM Appliance, Unit "
                "WHERE (Appliance.IdUnit = Unit.IdUnit) AND (Unit.IdBuilding = ?))) "
                "ORDER BY Account.ShowAs"},
};

constexpr std::array kTenantLists = {
    RelatedList{"Incidents", "frmTenant.Incident", core::kIncident, kShowsIncidents,
                "SELECT IdIncident, EntryDate AS [Entry Date], Severity, Description "
                "FROM Incident WHERE IdTenant = ? ORDER BY DateValue(EntryDate) DESC"}};

constexpr std::array kWorkOrderLists = {
    RelatedList{"History", "frmWorkOrder.WOItem", core::kWorkOrderHistory, kShowsHistory,
                "SELECT IdWOItem, EntryDate AS [Entry Date], Description "
                "FROM WOItem WHERE IdWorkOrder = ? ORDER BY DateValue(EntryDate) DESC"}};

constexpr std::array kApplianceLists = {RelatedList{
    "Service Contracts", "frmAppliance.SvcContract", core::kSvcContract, kShowsContracts,
    "SELECT SvcContract.IdSvcContract, Account.ShowAs AS [Vendor], "
    "SvcContract.SvcTerm AS [Term], SvcContract.SvcTermType AS [Term Type], "
    "SvcContract.SvcType AS [Service] "
    "FROM SvcContract LEFT JOIN Account ON SvcContract.IdVendor = Account.IdAccount "
    "WHERE SvcContract.IdAppliance = ? ORDER BY Account.ShowAs"}};

std::span<const RelatedList> ListsOf(core::RecordKind ownerKind) {
    struct Owner {
        core::RecordKind kind;
        std::span<const RelatedList> lists;
    };
    static constexpr Owner kOwners[] = {{core::kBuilding, kBuildingLists},
                                        {core::kUnit, kUnitLists},
                                        {core::kTenant, kTenantLists},
                                        {core::kWorkOrder, kWorkOrderLists},
                                        {core::kAppliance, kApplianceLists}};
    const auto* const found = std::ranges::find(kOwners, ownerKind, &Owner::kind);
    return found == std::end(kOwners) ? std::span<const RelatedList>() : found->lists;
}

/// Returns the statement with its dates read as stored text: DateValue would fail the whole list
/// for one value that isn't a date.
std::string WithDatesAsText(std::string_view sql) {
    static const std::regex kDateValue(R"(DateValue\(([^()]*)\))");
    return std::regex_replace(std::string(sql), kDateValue, "$1");
}

std::int32_t BuildingOfAppliance(std::int32_t idAppliance) {
    const auto building = core::LookUp(
        "SELECT Unit.IdBuilding FROM Appliance, Unit "
        "WHERE (Appliance.IdUnit = Unit.IdUnit) AND (Appliance.IdAppliance = ?)",
        {idAppliance});
    return building ? building->AsLong() : 0;
}

} // namespace

std::span<const RelatedList> TabbedLists(core::RecordKind ownerKind) {
    const auto lists = ListsOf(ownerKind);
    return lists.size() > 1 ? lists : std::span<const RelatedList>();
}

const RelatedList* SingleList(core::RecordKind ownerKind) {
    const auto lists = ListsOf(ownerKind);
    return lists.size() == 1 ? &lists.front() : nullptr;
}

platform::Recordset OpenRelated(const RelatedList& list, const RelatedOwner& owner) {
    const auto places = std::ranges::count(list.sql, '?');
    const std::vector<platform::Value> parameters(static_cast<std::size_t>(places), owner.id);
    platform::Recordset rows;
    try {
        rows = core::Read(list.sql, parameters);
    } catch (const platform::DatabaseError&) {
        const std::string asText = WithDatesAsText(list.sql);
        if (asText == list.sql) throw;
        rows = core::Read(asText, parameters);
    }
    return rows;
}

core::EditRequest RelatedRequest(const RelatedList& list, const RelatedOwner& owner,
                                 std::int32_t id) {
    if (owner.kind == core::kAppliance) {
        return {.kind = list.kind,
                .id = id,
                .parent1 = BuildingOfAppliance(owner.id),
                .parent3 = owner.id};
    }
    return {.kind = list.kind, .id = id, .parent1 = owner.id};
}

} // namespace records
