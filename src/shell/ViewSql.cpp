#include <array>

#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/system/Clock.h"
#include "shell/Views.h"

namespace shell {

using platform::Date;
using platform::DateAdd;
using platform::Interval;
using platform::dialect::QuoteDate;
using platform::dialect::QuoteText;

namespace {

struct View {
    core::RecordKind kind;
    std::string_view idColumn;
    std::string_view columns;
    std::string_view tables;
    std::string_view statusField;
    std::string_view notHidden;
};

// A name joined with `+` is null if any part of it is null.
constexpr std::array<View, 6> kViews = {{
    {core::kAccount, "IdAccount, ",
     "ShowAs AS [Description], City, State, Phone, FAX, AccountType AS [Account Type], "
     "AccountNumber AS [Account Number] ",
     "FROM Account ", "AccountType", "Account.Hide = False"},
    {core::kLease, "Lease.IdLease, ",
     "Lease.Status AS [Status], "
     "Tenant.LastName +', '+ Tenant.FirstName+' ' +Tenant.Initial AS [Tenant], "
     "Building.Address AS [Address], Unit.Unit AS [Unit], "
     "DateValue(Lease.DateActive) AS [Date Active], Lease.Rent AS [Rent], "
     "Lease.RentStatus AS [Rent Status], Lease.Option AS [Option] ",
     "FROM Lease,Building,Unit,Tenant WHERE (Lease.IdUnit=Unit.IdUnit) "
     "AND (Unit.IdBuilding=Building.IdBuilding) AND (Lease.IdTenant=Tenant.IdTenant) ",
     "Lease.Status", "Lease.Hide = False"},
    {core::kMortgage, "Mortgage.IdMortgage, ",
     "Mortgage.Status AS [Status], AcctMee.ShowAs AS [Lender], "
     "Mortgage.AccountNumber AS [Account Number], AcctMor.ShowAs AS [Borrower], "
     "Building.Address AS [Address], Mortgage.PmtStatus AS [Payment Status], "
     "Mortgage.CurrentPV AS [Balance], Mortgage.CurrentI * 100 AS [I Rate], "
     "Mortgage.CurrentPmt AS [Payment] ",
     "FROM ((Mortgage "
     "LEFT JOIN Account AS AcctMee ON Mortgage.idMortgagee = AcctMee.idAccount) "
     "LEFT JOIN Account AS AcctMor ON Mortgage.idMortgagor = AcctMor.idAccount) "
     "LEFT JOIN Building ON Mortgage.idBuilding = Building.idBuilding ",
     "Mortgage.Status", "Mortgage.Hide = False"},
    {core::kTenant, "IdTenant, ",
     "Status, LastName +', '+ FirstName +' '+ Initial AS [Name], Phone, "
     "AltPhone AS [Alternate Phone], MaritalStatus AS [Marital Status], "
     "SpouseName AS [Spouse Name], Email ",
     "FROM Tenant ", "Status", "Tenant.Hide = False"},
    {core::kWorkOrder, "WorkOrder.IdWorkOrder, ",
     "WorkOrder.Status, WorkOrder.ShortDesc AS [Description], WorkOrder.Priority, "
     "DateValue(WorkOrder.DateOpened) AS [Date Opened], WorkOrder.Initiator, Building.Address, "
     "Unit.Unit ",
     "FROM (WorkOrder LEFT JOIN Unit ON WorkOrder.IdUnit=Unit.IdUnit) "
     "LEFT JOIN Building ON Building.IdBuilding=Unit.IdBuilding ",
     "WorkOrder.Status", "WorkOrder.Hide = False"},
    {core::kUnit, "Unit.IdUnit, ",
     "Unit.Status, Address, Unit, City, State, Bedrooms, Bathrooms, SqFt AS [Size], Rent ",
     "FROM Building INNER JOIN Unit ON Building.IdBuilding = Unit.IdBuilding ", "Unit.Status",
     "Unit.Hide = False"},
}};

constexpr std::string_view kTransactionColumns =
    "DateValue(DateEffective) AS [Effective Date], DebitDesc AS [From], CreditDesc AS [To], "
    "Amount, TaxCategory AS [Category], CheckNum AS [Check #], Description ";

// The program's date zero, which is before every transaction.
const Date kZeroDate(1899, 12, 30);

struct FilterColumn {
    std::string_view field;
    std::string_view column;
    bool byId;
};

constexpr std::array<FilterColumn, 9> kFilterColumns = {{
    {"To", "CreditDesc", false},
    {"From", "DebitDesc", false},
    {"Category", "TaxCategory", false},
    {"Building", "IdBuilding", true},
    {"Unit", "IdUnit", true},
    {"Tenant", "IdTenant", true},
    {"Lease", "IdLease", true},
    {"Mortgage", "IdMortgage", true},
    {"Work Order", "IdWorkOrder", true},
}};

std::string TransactionFilter(const ViewFilter& filter) {
    if (filter.item.text == "All") return {};
    for (const FilterColumn& column : kFilterColumns) {
        if (column.field != filter.field) continue;
        return std::string(column.column) + " = " +
               (column.byId ? std::to_string(filter.item.id) : QuoteText(filter.item.text)) + " ";
    }
    return {};
}

std::string TransactionsSql(const ViewFilter& filter, IdColumn idColumn) {
    const Date cutoff =
        filter.days == 0 ? kZeroDate : DateAdd(Interval::Day, -filter.days, platform::Today());
    std::string sql = "SELECT ";
    if (idColumn == IdColumn::First) sql += "IdTransaction, ";
    sql += kTransactionColumns;
    sql += "FROM Transactions WHERE (DateValue(DateEffective) >= " + QuoteDate(cutoff) + ") ";
    const std::string condition = TransactionFilter(filter);
    if (!condition.empty()) sql += "AND (" + condition + ") ";
    return sql;
}

std::string ViewSql(const View& view, const ViewFilter& filter, IdColumn idColumn) {
    std::string sql = "SELECT ";
    if (idColumn == IdColumn::First) sql += view.idColumn;
    sql += view.columns;
    sql += view.tables;
    if (filter.status != "All") {
        core::AddWhere(sql, std::string(view.statusField) + " = " + QuoteText(filter.status));
    }
    if (!filter.showHidden) core::AddWhere(sql, view.notHidden);
    return sql;
}

} // namespace

std::string BuildViewSql(core::RecordKind kind, const ViewFilter& filter, IdColumn idColumn) {
    if (kind == core::kTransaction) return TransactionsSql(filter, idColumn);
    for (const View& view : kViews) {
        if (view.kind == kind) return ViewSql(view, filter, idColumn);
    }
    return {};
}

} // namespace shell
