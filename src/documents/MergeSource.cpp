#include "documents/MergeSource.h"

#include <array>
#include <string_view>

#include "core/RecordKinds.h"
#include "core/Rows.h"

namespace documents {

namespace {

struct Source {
    core::RecordKind kind;
    std::string_view sql;
};

constexpr std::string_view kUnitSource =
    "SELECT Building.Address + ' ' + Unit.Unit AS [Description], Unit.*, Building.* "
    "FROM Building, Unit "
    "WHERE (Unit.IdBuilding = Building.IdBuilding) AND (Unit.IdUnit = ?)";

constexpr std::array kSources = {
    Source{core::kAccount,
           "SELECT ShowAs AS [Description], ShowAs, * FROM Account WHERE IdAccount = ?"},
    Source{core::kLease,
           "SELECT Tenant.LastName + ' - ' + Building.Address AS [Description], Lease.*, "
           "Tenant.LastName, Tenant.FirstName, Tenant.Initial, Building.Address, Unit.Unit, "
           "Building.City, Building.County, Building.State, Building.Zip "
           "FROM Lease, Building, Tenant, Unit "
           "WHERE (Lease.IdUnit = Unit.IdUnit) AND (Unit.IdBuilding = Building.IdBuilding) "
           "AND (Lease.IdTenant = Tenant.IdTenant) AND (Lease.IdLease = ?)"},
    Source{core::kMortgage,
           "SELECT Mortgagee.ShowAs + ' ' + Mortgage.AccountNumber AS [Description], Mortgage.*, "
           "Mortgagee.ShowAs AS [Mortgagee], Mortgagor.ShowAs AS [Mortgagor], "
           "Building.Address AS [Address] "
           "FROM ((Mortgage LEFT JOIN Account AS Mortgagee "
           "ON Mortgage.idMortgagee = Mortgagee.IdAccount) "
           "LEFT JOIN Account AS Mortgagor ON Mortgage.idMortgagor = Mortgagor.IdAccount) "
           "LEFT JOIN Building ON Mortgage.IdBuilding = Building.IdBuilding "
           "WHERE Mortgage.idMortgage = ?"},
    Source{core::kTenant,
           "SELECT LastName AS [Description], LastName, * FROM Tenant WHERE IdTenant = ?"},
    Source{core::kWorkOrder,
           "SELECT WorkOrder.ShortDesc AS [Description], WorkOrder.*, Account.ShowAs AS [Vendor], "
           "Building.Address, Unit.Unit "
           "FROM ((WorkOrder LEFT JOIN Unit ON WorkOrder.IdUnit = Unit.IdUnit) "
           "LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding) "
           "LEFT JOIN Account ON WorkOrder.IdVendor = Account.IdAccount "
           "WHERE WorkOrder.IdWorkOrder = ?"},
    Source{core::kTransaction, "SELECT * FROM Transactions WHERE idTransaction = ?"},
    Source{core::kMileage,
           "SELECT Mileage.Vehicle + ' ' + Mileage.EntryDate AS [Description], Mileage.*, "
           "Building.Address, Building.City, Building.State, Building.Zip "
           "FROM Mileage LEFT JOIN Building ON Mileage.IdBuilding = Building.IdBuilding "
           "WHERE Mileage.IdMileage = ?"},
    Source{core::kBuilding, kUnitSource},
    Source{core::kUnit, kUnitSource},
    Source{core::kUnitWithBuilding, kUnitSource},
};

const Source* SourceOf(core::RecordKind kind) {
    for (const Source& source : kSources) {
        if (source.kind == kind) return &source;
    }
    return nullptr;
}

} // namespace

bool HasMergeSource(core::RecordKind kind) {
    return SourceOf(kind) != nullptr;
}

void OpenMergeSource(platform::Recordset& fields, core::RecordKind kind, std::int32_t id) {
    if (const Source* const source = SourceOf(kind)) {
        fields = core::Read(source->sql, {id});
    }
}

} // namespace documents
