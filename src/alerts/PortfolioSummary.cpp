#include "alerts/PortfolioSummary.h"

#include <string>

#include "core/Globals.h"
#include "core/Session.h"
#include "platform/database/Recordset.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/system/Clock.h"

namespace alerts {

using platform::Currency;
using platform::Date;

namespace {

Currency Total(std::string_view sql) {
    platform::Recordset rows;
    if (core::OpenRecordset(rows, sql, core::Access::ReadOnly) < 1) return {};
    const auto total = rows["Total"];
    return total.IsNull() ? Currency() : total.AsCurrency();
}

Currency TransactionsSince(std::string_view ien, Date first) {
    return Total(
        "SELECT Sum(Amount) AS [Total] FROM Transactions WHERE (IEN = " + std::string(ien) +
        ") AND (DateValue(DateEffective) >= " + platform::dialect::QuoteDate(first) + ")");
}

constexpr std::string_view kIncome = "0";
constexpr std::string_view kExpense = "1";

} // namespace

std::vector<SummaryGroup> GetPortfolioSummary() {
    const Date today = platform::Today();
    const Date firstOfMonth(today.Year(), today.Month(), 1);
    const Date firstOfYear(today.Year(), 1, 1);
    return {
        {"Financial Information",
         {{"Income - Month to Date", TransactionsSince(kIncome, firstOfMonth)},
          {"Income - Year to Date", TransactionsSince(kIncome, firstOfYear)},
          {"Expenses - Month to Date", TransactionsSince(kExpense, firstOfMonth)},
          {"Expenses - Year to Date", TransactionsSince(kExpense, firstOfYear)}}},
        {"Lease Information",
         {{"Total Rent Due", Total("SELECT Sum(Amount) AS [Total] FROM RentLog WHERE (Class = 1) "
                                   "AND (IdTransaction = 0)")},
          {"Total Rent Subsidy Due",
           Total("SELECT Sum(Amount) AS [Total] FROM RentLog WHERE (Class = 2) "
                 "AND (IdTransaction = 0)")},
          {"Lease Option Credits",
           Total("SELECT Sum(Amount) AS [Total] FROM RentLog WHERE (Class = 4)")},
          {"Total Deposits Held", Total("SELECT Sum(DepositBalance) AS [Total] FROM Lease")}}},
        {"Mortgage Information",
         {{"Total Mortgage Balances", Total("SELECT Sum(CurrentPV) AS [Total] FROM Mortgage")},
          {"Mortgage Payments Due",
           Total("SELECT Sum(Total) AS [Total] FROM MortgageLog WHERE (IdTransaction = 0)")}}},
        {"Building Information",
         {{"Total Market Value", Total("SELECT Sum(MktValue) AS [Total] FROM Building")},
          {"Total Equity", Total("SELECT Sum(Equity) AS [Total] FROM Building")}}},
    };
}

} // namespace alerts
