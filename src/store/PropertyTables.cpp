#include "store/TableParts.h"

namespace store {

using enum FieldKind;

namespace {

TableDefinition BuildingTable() {
    return MakeTable(
        "Building",
        {{Long, "IdBuilding"},
         {Boolean, "Hide Selected Multi"},
         {Text, "Address City County State Zip PropType PropDesc Zoning Construction Region"},
         {Integer, "YearBuilt StoryHeight"},
         {Text, "LotSize KeyType KeyCode TaxAccountNumber"},
         {Memo, "Legal Notes"},
         {Boolean, "Shed Fence Pool LawnIrrigation Deck Waterfront"},
         {Double, "Distance"},
         {DateText, "PurchDate"},
         {Currency, "PurchPrice"},
         {Text, "PurchFrom PurchAgent"},
         {Boolean, "PurchTitleIns"},
         {DateText, "SaleDate"},
         {Currency, "SalePrice"},
         {Text, "SoldTo CloseAgent"},
         {Boolean, "SaleTitleIns"},
         {Currency, "MktValue Equity"},
         {Text, "DeprMethod"},
         {Double, "DeprPeriod"},
         {Currency, "DeprBasis"},
         {Long, "HOAAccount"},
         {Text, "HOAFrequency"},
         {Currency, "HOAPayment"},
         {DateText, "HOANextDue"},
         {Long, "InsAccount"},
         {Text, "InsPolNum"},
         {DateText, "InsNextDue"},
         {Memo, "InsNotes"},
         {Long, "SecAccount"},
         {Text, "SecVendor SecAccountNumber SecMaster SecPassword"},
         {Long, "ElectricAccount WaterAccount GasAccount SewageAccount CableAccount TrashAccount"},
         {Text,
          "ElectricAccountNumber WaterAccountNumber GasAccountNumber SewageAccountNumber "
          "CableAccountNumber TrashAccountNumber WaterSource SewageType GasType"}},
        {"IdBuilding"});
}

TableDefinition UnitTable() {
    return MakeTable("Unit",
                     {{Long, "IdUnit IdBuilding"},
                      {Boolean, "Hide Selected"},
                      {Text, "Unit Status"},
                      {Integer, "Ccount"},
                      {Currency, "Rent"},
                      {Text, "Faces KeyType KeyCode SecTenant Ad Bedrooms Bathrooms Garage"},
                      {Integer, "SqFt"},
                      {Boolean, "Split Fireplace WDHookup Smoke PetAllowed"},
                      {Memo, "Notes"}},
                     {"IdUnit", "IdBuilding"});
}

TableDefinition RoomTable() {
    return MakeTable("Room",
                     {{Long, "IdRoom IdUnit"},
                      {Text,
                       "RoomType Dimensions Ceiling Flooring Lighting Fixtures Closets Doors "
                       "Outlets Windows PaintCode"},
                      {Boolean, "Phone Cable Network"},
                      {Memo, "Notes"}},
                     {"IdRoom", "IdUnit"});
}

TableDefinition ContentTable() {
    return MakeTable("Content",
                     {{Long, "IdContent IdUnit"},
                      {Text, "Description Manufacturer Model SN"},
                      {Currency, "Value"},
                      {Memo, "Notes"}},
                     {"IdContent", "IdUnit"});
}

TableDefinition ApplianceTable() {
    return MakeTable("Appliance",
                     {{Long, "IdAppliance IdUnit IdVendor"},
                      {Text, "ApplianceType Manufacturer Model SN Color Capacity Warranty Source"},
                      {DateText, "PurchaseDate"},
                      {Currency, "Cost"},
                      {Text, "DeprMethod"},
                      {Integer, "DeprTerm"},
                      {Memo, "Notes"}},
                     {"IdAppliance", "IdUnit"});
}

TableDefinition WorkOrderTable() {
    return MakeTable("WorkOrder",
                     {{Long, "IdWorkOrder"},
                      {Boolean, "Hide Selected"},
                      {Long, "IdParent IdUnit IdRoom IdAppliance IdVendor IdOwner"},
                      {Text, "Status Initiator ShortDesc"},
                      {Integer, "Priority"},
                      {Boolean, "Permission"},
                      {Text, "Rep Tech"},
                      {Currency, "Estimate Limit Actual"},
                      {DateText, "DateOpened DateClosed"},
                      {Memo, "Notes"}},
                     {"IdWorkOrder", "IdUnit", "IdAppliance"});
}

TableDefinition WOItemTable() {
    return MakeTable("WOItem",
                     {{Long, "IdWOItem IdWorkOrder"},
                      {DateText, "EntryDate"},
                      {Text, "Description"},
                      {Memo, "Notes"}},
                     {"IdWOItem", "IdWorkOrder"});
}

TableDefinition SvcContractTable() {
    return MakeTable("SvcContract",
                     {{Long, "IdSvcContract IdBuilding IdAppliance IdVendor"},
                      {Text, "SvcType Rep Phone AltPhone"},
                      {DateText, "DateStart"},
                      {Integer, "SvcTerm"},
                      {Text, "SvcTermType"},
                      {Currency, "Amount"},
                      {Integer, "BillTerm"},
                      {Text, "BillTermType BillType"},
                      {DateText, "DatePaidThru"},
                      {Memo, "Notes"}},
                     {"IdSvcContract", "IdBuilding", "IdAppliance"});
}

} // namespace

std::vector<TableDefinition> PropertyTables() {
    return {BuildingTable(),  UnitTable(),      RoomTable(),   ContentTable(),
            ApplianceTable(), WorkOrderTable(), WOItemTable(), SvcContractTable()};
}

} // namespace store
