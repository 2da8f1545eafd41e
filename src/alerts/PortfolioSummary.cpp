#include "alerts/PortfolioSummary.h"

#include <string>

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"

namespace alerts {

using platform::Date;

namespace {

SummaryItem Sum(std::string_view name, std::string_view sql) {
    SummaryItem item{name, {}, {}};
    try {
        item.total = platform::AsOr0<platform::Currency>(core::ReadValue(sql));
    } catch (const platform::Error& failure) {
        item.fault = failure.what();
    }
    return item;
}

SummaryItem TransactionsSince(std::string_view name, std::string_view ien, Date first) {
    return Sum(name,
               "SELECT Sum(Amount) AS [Total] FROM Transactions WHERE (IEN = " + std::string(ien) +
                   ") AND (DateValue(DateEffective) >= " + platform::dialect::QuoteDate(first) +
                   ")");
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
         {TransactionsSince("Income - Month to Date", kIncome, firstOfMonth),
          TransactionsSince("Income - Year to Date", kIncome, firstOfYear),
          TransactionsSince("Expenses - Month to Date", kExpense, firstOfMonth),
          TransactionsSince("Expenses - Year to Date", kExpense, firstOfYear)}},
        {"Lease Information",
         {Sum("Total Rent Due",
              "SELECT Sum(Amount) AS [Total] FROM RentLog WHERE (Class = 1) "
              "AND (IdTransaction = 0)"),
          Sum("Total Rent Subsidy Due",
              "SELECT Sum(Amount) AS [Total] FROM RentLog WHERE (Class = 2) "
              "AND (IdTransaction = 0)"),
          Sum("Lease Option Credits",
              "SELECT Sum(Amount) AS [Total] FROM RentLog WHERE (Class = 4)"),
          Sum("Total Deposits Held", "SELECT Sum(DepositBalance) AS [Total] FROM Lease")}},
        {"Mortgage Information",
         {Sum("Total Mortgage Balances", "SELECT Sum(CurrentPV) AS [Total] FROM Mortgage"),
          Sum("Mortgage Payments Due",
              "SELECT Sum(Total) AS [Total] FROM MortgageLog WHERE (IdTransaction = 0)")}},
        {"Building Information",
         {Sum("Total Market Value", "SELECT Sum(MktValue) AS [Total] FROM Building"),
          Sum("Total Equity", "SELECT Sum(Equity) AS [Total] FROM Building")}},
    };
}

} // namespace alerts
