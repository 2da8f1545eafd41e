#include "leases/CreditBooks.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>

#include <fmt/core.h>

#include "core/Globals.h"
#include "leases/LeaseEditor.h"
#include "platform/database/Recordset.h"
#include "platform/values/Format.h"
#include "support/Books.h"

namespace tests {

namespace {

constexpr std::array kWrites = {"Part paid",    "Part left open",        "Paid ahead",
                                "Fee charged",  "Payment in the ledger", "Credit left open",
                                "Option credit"};

std::string LineOf(std::string_view day, std::string_view category, std::string_view description,
                   platform::Currency amount) {
    return fmt::format("{}|{}|{}|{}", day, category, description, platform::FormatMoney(amount));
}

std::vector<std::string> LinesOf(const leases::PreviewRows& preview,
                                 const std::function<bool(const std::string& what)>& wanted) {
    std::vector<std::string> lines;
    for (const leases::PreviewRow& row : preview) {
        if (wanted(row.what))
            lines.push_back(LineOf(row.date.ToText(), row.category, row.description, row.amount));
    }
    std::ranges::sort(lines);
    return lines;
}

} // namespace

void CreditBooks::Restart() {
    for (const char* const table : {"RentLog", "Transactions", "RentCredit", "LeaseCredit"})
        Run(std::string("DELETE * FROM ") + table);
    SetLeaseField("DateNextDue", "01/01/2024");
    leases::StoreBalances(kLeaseId);
}

std::int32_t CreditBooks::Id(std::string_view select) {
    return core::App().Connection.Scalar(select)->AsLong();
}

leases::AmountPayment CreditBooks::Amount(int units, leases::TransactionClass rentClass) {
    return {leases::ProposePayment(kLeaseId, rentClass), platform::Currency::FromUnits(units)};
}

BooksTest::Lines CreditBooks::LedgerLines() {
    Lines lines;
    platform::Recordset rows;
    rows.Open(core::App().Connection, "SELECT * FROM RentLog");
    for (; !rows.Eof(); rows.MoveNext()) {
        lines.push_back(LineOf(rows["DatePosted"].AsText(), rows["Category"].AsText(),
                               rows["Description"].AsText(), rows["Amount"].AsCurrency()));
    }
    std::ranges::sort(lines);
    return lines;
}

BooksTest::Lines CreditBooks::Difference(const Lines& a, const Lines& b) {
    Lines lines;
    std::ranges::set_difference(a, b, std::back_inserter(lines));
    return lines;
}

BooksTest::Lines CreditBooks::NewRows(const leases::PreviewRows& preview) {
    return LinesOf(preview, [](const std::string& what) {
        return std::ranges::find(kWrites, what) != kWrites.end();
    });
}

BooksTest::Lines CreditBooks::RemovedRows(const leases::PreviewRows& preview) {
    return LinesOf(preview, [](const std::string& what) { return what == "Split in two"; });
}

BooksTest::Lines CreditBooks::Paid() {
    Lines lines;
    platform::Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT * FROM RentLog WHERE Flags <> 2 AND Class <> 4 "
              "ORDER BY DateValue(DatePosted), Category DESC, IdTransaction DESC, IdRentLog");
    for (; !rows.Eof(); rows.MoveNext()) {
        const bool isOpen = rows["IdTransaction"].AsLong() == 0;
        const std::string description = rows["Description"].AsText();
        const bool isDeferred = description.starts_with("Deferred");
        const platform::Currency amount = rows["Amount"].AsCurrency();
        // A whole charge that is still open was left as it was.
        if (isOpen && !isDeferred && amount > platform::Currency()) continue;
        lines.push_back(fmt::format("{}{} {} {}", rows["Category"].AsText(),
                                    isDeferred ? " Deferred" : "",
                                    platform::FormatNumber(amount, "0"), isOpen ? '-' : '+'));
    }
    return lines;
}

void CreditBooks::ExpectBalanced() {
    EXPECT_EQ(support::Rows(core::App().Connection,
                            "SELECT t.IdTransaction, t.Amount, Sum(r.Amount) AS Rest FROM "
                            "Transactions AS t INNER JOIN RentLog AS r ON t.IdTransaction = "
                            "r.IdTransaction GROUP BY t.IdTransaction, t.Amount "
                            "HAVING Sum(r.Amount) <> 0"),
              Lines{});
    EXPECT_EQ(support::Rows(core::App().Connection,
                            "SELECT t.IdTransaction FROM Transactions AS t INNER JOIN RentLog AS r "
                            "ON t.IdTransaction = r.IdTransaction WHERE r.Flags = 2 AND "
                            "r.Amount + t.Amount <> 0"),
              Lines{});
    const auto sum = [](std::string_view sql) {
        const auto value = core::App().Connection.Scalar(sql);
        return value->IsNull() ? platform::Currency() : value->AsCurrency();
    };
    const auto charged =
        sum("SELECT Sum(Amount) FROM RentLog WHERE Class <> 4 AND Flags <> 2 AND Category NOT IN "
            "('Overpayment', 'Credit', 'Returned Payment')");
    EXPECT_EQ(sum("SELECT Sum(Amount) FROM RentLog WHERE IdTransaction = 0 AND Class <> 4"),
              charged - sum("SELECT Sum(Amount) FROM Transactions"));
}

} // namespace tests
