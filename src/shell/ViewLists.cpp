#include <array>

#include "core/Codes.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "shell/Views.h"

namespace shell {

namespace {

constexpr std::string_view kAll = "All";

constexpr std::array<std::string_view, 10> kFilterFields = {
    "None", "To",     "From",  "Category", "Building",
    "Unit", "Tenant", "Lease", "Mortgage", "Work Order"};

struct Statuses {
    core::RecordKind kind;
    std::span<const std::string_view> statuses;
};

constexpr std::array<Statuses, 5> kStatuses = {{
    {core::kLease, core::kLeaseStatuses},
    {core::kMortgage, core::kMortgageStatuses},
    {core::kTenant, core::kTenantStatuses},
    {core::kWorkOrder, core::kWorkOrderStatuses},
    {core::kUnit, core::kUnitStatuses},
}};

struct ItemSource {
    std::string_view field;
    std::string_view sql;
};

constexpr std::array<ItemSource, 9> kItemSources = {{
    {"To", "SELECT DISTINCT CreditDesc AS [Description], 0 AS [ID] FROM Transactions"},
    {"From", "SELECT DISTINCT DebitDesc AS [Description], 0 AS [ID] FROM Transactions"},
    {"Category", "SELECT DISTINCT TaxCategory AS [Description], 0 AS [ID] FROM Transactions"},
    {"Building", "SELECT Address AS [Description], IdBuilding AS [ID] FROM Building"},
    {"Unit",
     "SELECT Building.Address +' '+ Unit.Unit AS [Description], Unit.IdUnit AS [ID] "
     "FROM Unit, Building WHERE Unit.IdBuilding = Building.IdBuilding "},
    {"Tenant",
     "SELECT LastName +', '+ FirstName +' '+ Initial AS [Description], IdTenant AS [ID] "
     "FROM Tenant"},
    {"Lease",
     "SELECT Tenant.LastName +', '+ Building.Address +' '+ Unit.Unit AS [Description], "
     "IdLease AS [ID] FROM Lease,Building,Unit,Tenant WHERE (Lease.IdUnit=Unit.IdUnit) "
     "AND (Unit.IdBuilding=Building.IdBuilding) AND (Lease.IdTenant=Tenant.IdTenant) "},
    {"Mortgage",
     "SELECT Mortgage.AccountNumber AS [Description], Mortgage.IdMortgage AS [ID] "
     "FROM Mortgage WHERE Mortgage.IdMortgagee = 0 "
     "UNION SELECT Mortgage.AccountNumber AS [Description], Mortgage.IdMortgage AS [ID] "
     "FROM Mortgage LEFT JOIN Account ON Mortgage.idMortgagee = Account.idAccount "
     "WHERE Mortgage.IdMortgagee <> 0 "},
    {"Work Order", "SELECT ShortDesc AS [Description], IdWorkOrder AS [ID] FROM WorkOrder "},
}};

std::vector<std::string> ColumnOf(std::string_view sql) {
    std::vector<std::string> words;
    platform::Recordset rows;
    core::OpenRecordset(rows, sql, platform::CursorMode::ReadOnly);
    if (!rows.IsOpen()) return words;
    for (; !rows.Eof(); rows.MoveNext()) {
        if (!rows[std::size_t{0}].IsBlank()) words.push_back(rows[std::size_t{0}].AsText());
    }
    return words;
}

} // namespace

std::vector<std::string> ViewWords(core::RecordKind kind) {
    std::vector<std::string> words = {std::string(kAll)};
    std::vector<std::string> own;
    if (kind == core::kAccount) own = ColumnOf("SELECT DISTINCT AccountType FROM Account");
    if (kind == core::kMileage) own = ColumnOf("SELECT DISTINCT Vehicle FROM Mileage");
    for (const Statuses& fixed : kStatuses) {
        if (fixed.kind == kind) own.assign(fixed.statuses.begin(), fixed.statuses.end());
    }
    words.insert(words.end(), own.begin(), own.end());
    return words;
}

std::span<const std::string_view> FilterFields() {
    return kFilterFields;
}

std::vector<Choice> FilterItems(std::string_view field) {
    std::vector<Choice> items = {{std::string(kAll), 0}};
    for (const ItemSource& source : kItemSources) {
        if (source.field != field) continue;
        platform::Recordset rows;
        core::OpenRecordset(rows, source.sql, platform::CursorMode::ReadOnly);
        if (!rows.IsOpen()) break;
        for (; !rows.Eof(); rows.MoveNext()) {
            items.push_back({platform::TextOf(rows["Description"]), rows["ID"].AsLong()});
        }
    }
    return items;
}

} // namespace shell
