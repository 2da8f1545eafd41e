#include "search/Sources.h"

#include <array>

#include "core/RecordKinds.h"

namespace search {

namespace {

constexpr std::array<Source, 19> kSources = {{
    {"Tenants", "tenants", core::kTenant, ", ",
     "SELECT IdTenant, LastName AS T1, FirstName AS T2, Initial AS T3, Status AS D1, "
     "Phone AS D2, Hide AS DHidden, AltPhone AS W1, Email AS W2, Web AS W3, SpouseName AS W4, "
     "Notes AS W5 FROM Tenant ORDER BY 1 DESC"},
    {"Leases", "leases", core::kLease, ", ",
     "SELECT Lease.IdLease, Tenant.LastName AS T1, Building.Address AS T2, Unit.Unit AS T3, "
     "Lease.Status AS D1, Lease.RentStatus AS D2, Lease.Rent AS D3, Lease.Hide AS DHidden, "
     "Tenant.FirstName AS W1, Lease.DateActive AS W2, Lease.DateRenewed AS W3, "
     "Lease.DateVacating AS W4, Lease.DateNextDue AS W5, Lease.RentDue AS W6, "
     "Lease.DepositTotal AS W7, Lease.PetList AS W8, Lease.Residents AS W9, Lease.Notes AS W10 "
     "FROM ((Lease LEFT JOIN Tenant ON Lease.IdTenant = Tenant.IdTenant) "
     "LEFT JOIN Unit ON Lease.IdUnit = Unit.IdUnit) "
     "LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding ORDER BY 1 DESC"},
    {"Buildings", "property", core::kBuilding, ", ",
     "SELECT IdBuilding, Address AS T1, City AS T2, State AS T3, PropType AS D1, Zip AS D2, "
     "Hide AS DHidden, County AS W1, PropDesc AS W2, Zoning AS W3, Construction AS W4, "
     "Region AS W5, LotSize AS W6, TaxAccountNumber AS W7, Legal AS W8, Notes AS W9, "
     "PurchDate AS W10, PurchPrice AS W11, PurchFrom AS W12, PurchAgent AS W13, SaleDate AS W14, "
     "SalePrice AS W15, SoldTo AS W16, CloseAgent AS W17, MktValue AS W18, InsPolNum AS W19, "
     "InsNotes AS W20, HOAPayment AS W21 FROM Building ORDER BY 1 DESC"},
    {"Units", "units", core::kUnit, " ",
     "SELECT Unit.IdUnit, Building.Address AS T1, Unit.Unit AS T2, Unit.Status AS D1, "
     "Unit.Rent AS D2, Unit.Hide AS DHidden, Building.City AS W1, Unit.Faces AS W2, "
     "Unit.Ad AS W3, Unit.Notes AS W4 "
     "FROM Unit LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding ORDER BY 1 DESC"},
    {"Accounts", "accounts", core::kAccount, "",
     "SELECT IdAccount, ShowAs AS T1, AccountType AS D1, City AS D2, Hide AS DHidden, "
     "Company AS W1, LastName AS W2, FirstName AS W3, Address1 AS W4, Address2 AS W5, "
     "State AS W6, Zip AS W7, Phone AS W8, FAX AS W9, Mobile AS W10, Email AS W11, Web AS W12, "
     "Notes AS W13 FROM Account ORDER BY 1 DESC"},
    {"Contacts", "mail", core::kNone, " ",
     "SELECT IdContact, dbType AS Kind, IdRelated AS Parent1, FirstName AS T1, LastName AS T2, "
     "Company AS T3, Description AS D1, Phone AS D2, Address1 AS W1, Address2 AS W2, City AS W3, "
     "State AS W4, Zip AS W5, Mobile AS W6, FAX AS W7, Email AS W8, Web AS W9, Notes AS W10 "
     "FROM Contact ORDER BY 1 DESC"},
    {"Mortgages", "mortgages", core::kMortgage, ", ",
     "SELECT Mortgage.IdMortgage, Account.ShowAs AS T1, Mortgage.Description AS T2, "
     "Building.Address AS D1, Mortgage.Status AS D2, Mortgage.CurrentPmt AS D3, "
     "Mortgage.Hide AS DHidden, Mortgage.AccountNumber AS W1, Mortgage.NextDue AS W2, "
     "Mortgage.CurrentPV AS W3, Mortgage.OrigPV AS W4, Mortgage.EscrowAmount AS W5, "
     "Mortgage.Notes AS W6 "
     "FROM (Mortgage LEFT JOIN Account ON Mortgage.IdMortgagee = Account.IdAccount) "
     "LEFT JOIN Building ON Mortgage.IdBuilding = Building.IdBuilding ORDER BY 1 DESC"},
    {"Work Orders", "workorders", core::kWorkOrder, "",
     "SELECT WorkOrder.IdWorkOrder, WorkOrder.ShortDesc AS T1, WorkOrder.Status AS D1, "
     "Building.Address AS D2, Unit.Unit AS D3, WorkOrder.DateOpened AS D4, "
     "WorkOrder.Hide AS DHidden, WorkOrder.Initiator AS W1, WorkOrder.Rep AS W2, "
     "WorkOrder.Tech AS W3, WorkOrder.Estimate AS W4, WorkOrder.Limit AS W5, "
     "WorkOrder.Actual AS W6, WorkOrder.DateClosed AS W7, WorkOrder.Notes AS W8, "
     "Account.ShowAs AS W9 "
     "FROM ((WorkOrder LEFT JOIN Unit ON WorkOrder.IdUnit = Unit.IdUnit) "
     "LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding) "
     "LEFT JOIN Account ON WorkOrder.IdVendor = Account.IdAccount ORDER BY 1 DESC"},
    {"Work Order History", "workorders", core::kWorkOrderHistory, "",
     "SELECT WOItem.IdWOItem, WOItem.IdWorkOrder AS Parent1, WOItem.Description AS T1, "
     "WOItem.EntryDate AS D1, WorkOrder.ShortDesc AS D2, WOItem.Notes AS W1 "
     "FROM WOItem LEFT JOIN WorkOrder ON WOItem.IdWorkOrder = WorkOrder.IdWorkOrder "
     "ORDER BY 1 DESC"},
    {"Service Contracts", "calendar", core::kSvcContract, " ",
     "SELECT SvcContract.IdSvcContract, SvcContract.IdBuilding AS Parent1, "
     "SvcContract.IdAppliance AS Parent3, SvcContract.SvcType AS T1, Account.ShowAs AS T2, "
     "Building.Address AS D1, SvcContract.Amount AS D2, SvcContract.Rep AS W1, "
     "SvcContract.Phone AS W2, SvcContract.AltPhone AS W3, SvcContract.DateStart AS W4, "
     "SvcContract.DatePaidThru AS W5, SvcContract.Notes AS W6 "
     "FROM (SvcContract LEFT JOIN Account ON SvcContract.IdVendor = Account.IdAccount) "
     "LEFT JOIN Building ON SvcContract.IdBuilding = Building.IdBuilding ORDER BY 1 DESC"},
    {"Incidents", "warning", core::kIncident, "",
     "SELECT Incident.IdIncident, Incident.IdTenant AS Parent1, Incident.Description AS T1, "
     "Incident.EntryDate AS D1, Tenant.LastName AS D2, Incident.Severity AS W1, "
     "Incident.Notes AS W2, Tenant.FirstName AS W3 "
     "FROM Incident LEFT JOIN Tenant ON Incident.IdTenant = Tenant.IdTenant ORDER BY 1 DESC"},
    {"Rooms", "units", core::kRoom, "",
     "SELECT Room.IdRoom, Room.IdUnit AS Parent1, Room.RoomType AS T1, Building.Address AS D1, "
     "Unit.Unit AS D2, Room.Dimensions AS W1, Room.Flooring AS W2, Room.Fixtures AS W3, "
     "Room.PaintCode AS W4, Room.Notes AS W5 "
     "FROM (Room LEFT JOIN Unit ON Room.IdUnit = Unit.IdUnit) "
     "LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding ORDER BY 1 DESC"},
    {"Appliances", "settings", core::kAppliance, " ",
     "SELECT Appliance.IdAppliance, Appliance.IdUnit AS Parent1, Appliance.Manufacturer AS T1, "
     "Appliance.ApplianceType AS T2, Building.Address AS D1, Unit.Unit AS D2, "
     "Appliance.Model AS W1, Appliance.SN AS W2, Appliance.Warranty AS W3, "
     "Appliance.PurchaseDate AS W4, Appliance.Cost AS W5, Appliance.Notes AS W6 "
     "FROM (Appliance LEFT JOIN Unit ON Appliance.IdUnit = Unit.IdUnit) "
     "LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding ORDER BY 1 DESC"},
    {"Furnishings", "units", core::kContent, "",
     "SELECT Content.IdContent, Content.IdUnit AS Parent1, Content.Description AS T1, "
     "Building.Address AS D1, Unit.Unit AS D2, Content.Manufacturer AS W1, Content.Model AS W2, "
     "Content.SN AS W3, Content.Value AS W4, Content.Notes AS W5 "
     "FROM (Content LEFT JOIN Unit ON Content.IdUnit = Unit.IdUnit) "
     "LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding ORDER BY 1 DESC"},
    {"Automated Events", "autoevent", core::kAutoEvent, "",
     "SELECT IdAutoEvent, Description AS T1, TaxCategory AS D1, Amount AS D2, LastRun AS D3, "
     "TriggerTaxCategory AS W1 FROM AutoEvent ORDER BY 1 DESC"},
    {"Trips", "car", core::kMileage, "",
     "SELECT IdMileage, Destination AS T1, EntryDate AS D1, Vehicle AS D2, Purpose AS W1, "
     "Meal AS W2 FROM Mileage ORDER BY 1 DESC"},
    {"Files", "file", core::kNone, "",
     "SELECT IdFileObject, dbType AS Kind, IdOwner AS Parent1, Description AS T1, "
     "FilePath AS D1 FROM FileObject ORDER BY 1 DESC"},
    {"Open Charges", "financial", core::kRentLog, ", ",
     "SELECT RentLog.IdRentLog, RentLog.IdLease AS Parent1, RentLog.Class AS Parent3, "
     "RentLog.Category AS T1, Tenant.LastName AS T2, RentLog.DatePosted AS D1, "
     "RentLog.Amount AS D2, Building.Address AS D3, Unit.Unit AS D4, RentLog.Description AS W1 "
     "FROM (((RentLog LEFT JOIN Lease ON RentLog.IdLease = Lease.IdLease) "
     "LEFT JOIN Tenant ON Lease.IdTenant = Tenant.IdTenant) "
     "LEFT JOIN Unit ON Lease.IdUnit = Unit.IdUnit) "
     "LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding "
     "WHERE RentLog.IdTransaction = 0 ORDER BY 1 DESC"},
    {"Transactions", "financial", core::kTransaction, " to ",
     "SELECT IdTransaction, DebitDesc AS T1, CreditDesc AS T2, DateEffective AS D1, "
     "Amount AS D2, TaxCategory AS D3, CheckNum AS D4, Description AS D5 "
     "FROM Transactions ORDER BY 1 DESC"},
}};

} // namespace

std::span<const Source> Sources() {
    return kSources;
}

} // namespace search
