#include "books/LedgerView.h"

#include <gtest/gtest.h>

#include "books/BooksFixture.h"

namespace {

using books::LedgerScope;
using books::LedgerView;

class Ledger : public tests::BooksTest {
  protected:
    static std::string Shown(const LedgerView& view) {
        return Rows(books::LedgerSql(view, platform::Today()));
    }
    static void Add(std::string_view date, int debit, int credit, int amount, int idTenant = 0,
                    int idBuilding = 0, int idUnit = 0) {
        books::Transaction row = Payment();
        row.dateEffective = platform::Date::Parse(date);
        row.debit = {core::kTenant, debit, "D" + std::to_string(debit)};
        row.credit = {core::kAccount, credit, "C" + std::to_string(credit)};
        row.amount = platform::Currency::FromUnits(amount);
        row.taxCategory = "Rent";
        row.idTenant = idTenant;
        row.idBuilding = idBuilding;
        row.idUnit = idUnit;
        books::PostTransaction(row);
    }
};

TEST_F(Ledger, OfAnAccountSignsByTheSideAndGoesByTheIdAlone) {
    Add("05/01/2024", 30, 60, 100);
    Add("05/10/2024", 60, 62, 40);
    Add("05/05/2024", 61, 62, 7);
    Add("05/06/2024", 60, 60, 5);
    EXPECT_EQ(Shown({core::kAccount, 60}),
              "1001|05/10/2024|Rent|C62|-40;1003|05/06/2024|Rent|C60|-5;"
              "1003|05/06/2024|Rent|D60|5;1000|05/01/2024|Rent|D30|100;");
    EXPECT_EQ(Shown({core::kAccount, 30}), "1000|05/01/2024|Rent|C60|-100;")
        << "a tenant of that number shows too";
    EXPECT_EQ(Shown({core::kAccount, -1}), "");
}

TEST_F(Ledger, ReachesBackAsManyDaysAsThePeriodSays) {
    for (const auto* date : {"05/17/2022", "05/18/2022", "05/17/2023", "05/18/2023", "04/17/2024",
                             "04/16/2024", "06/01/2024"}) {
        Add(date, 30, 60, 1, 30);
    }
    const auto count = [&](int days) {
        const std::string shown = Shown({core::kTenant, 30, 0, LedgerScope::Unit, days});
        return std::count(shown.begin(), shown.end(), ';');
    };
    // Today is 05/17/2024, in a leap year.
    EXPECT_EQ(count(30), 2);
    EXPECT_EQ(count(60), 3);
    EXPECT_EQ(count(365), 4);
    EXPECT_EQ(count(731), 7);
    EXPECT_EQ(count(730), 6) << "without the day more, the first one is missed";
    EXPECT_EQ(count(0), 7);
}

TEST_F(Ledger, OfATenantOrUnitGoesByTheReferences) {
    Add("05/01/2024", 30, 60, 1, 30, 10, 20);
    Add("05/02/2024", 30, 60, 2, 31, 10, 0);
    Add("05/03/2024", 30, 60, 3, 0, 11, 0);
    EXPECT_EQ(Shown({core::kTenant, 30}), "1000|05/01/2024|D30|C60|1|Rent|May;");
    EXPECT_EQ(Shown({core::kUnit, 20, 10, LedgerScope::Unit}),
              "1000|05/01/2024|D30|C60|1|Rent|May;");
    EXPECT_EQ(Shown({core::kUnit, 20, 10, LedgerScope::Building}),
              "1001|05/02/2024|D30|C60|2|Rent|May;");
    EXPECT_EQ(books::LedgerSql({core::kLease, 40}, platform::Today()), "");
}

} // namespace
