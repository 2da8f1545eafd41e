#include "leases/CreditChecks.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>

#include <fmt/core.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
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

/// The rows of a preview that are wanted; the predicate also gets the row before.
Lines LinesOf(
    const leases::PreviewRows& preview,
    const std::function<bool(const std::string& what, const std::string& before)>& wanted) {
    Lines lines;
    std::string before;
    for (const leases::PreviewRow& row : preview) {
        if (wanted(row.what, before))
            lines.push_back(LineOf(row.date.ToText(), row.category, row.description, row.amount));
        before = row.what;
    }
    std::ranges::sort(lines);
    return lines;
}

} // namespace

Lines LedgerLines() {
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

Lines Difference(const Lines& a, const Lines& b) {
    Lines lines;
    std::ranges::set_difference(a, b, std::back_inserter(lines));
    return lines;
}

Lines NewRows(const leases::PreviewRows& preview) {
    return LinesOf(preview, [](const std::string& what, const std::string& before) {
        const bool isPartOfCredit = what == "Credit used" && before == "Split in two";
        return isPartOfCredit || std::ranges::find(kWrites, what) != kWrites.end();
    });
}

Lines RemovedRows(const leases::PreviewRows& preview) {
    return LinesOf(preview, [](const std::string& what, auto&) { return what == "Split in two"; });
}

Lines PaidCharges() {
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

void ExpectBalanced() {
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
