#include "alerts/PortfolioPicture.h"

#include <map>

#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "reports/ShippedFixture.h"

// Each figure of the home page's picture is the one of the report that opens behind it.

namespace {

using namespace tests;
using platform::Currency;
using platform::FormatMoney;

class PictureFigures : public Shipped {
  protected:
    alerts::PortfolioPicture picture_ = alerts::GetPortfolioPicture();
};

std::int32_t Whole(const std::string& cell) {
    return std::stoi(cell);
}

TEST_F(PictureFigures, OccupancyIsThatOfTheVacancyReport) {
    report.DateChoice = reports::DateRange::TrailingYear;
    std::int32_t units = 0;
    std::int32_t vacant = 0;
    for (const auto& row : TableRows(Run("Vacancy and Turnover.rpt"), "Building")) {
        units += Whole(row.at(1));
        vacant += Whole(row.at(2));
    }
    EXPECT_EQ(picture_.occupancy.fault, "");
    EXPECT_GT(vacant, 0);
    EXPECT_EQ(picture_.occupancy.units, units);
    EXPECT_EQ(picture_.occupancy.occupied, units - vacant);
}

TEST_F(PictureFigures, RentIsThatOfTheMonthInItsReport) {
    report.SelectedYear = "2026";
    const FlowLines flow = Run("Rent Charged and Collected.rpt");
    EXPECT_EQ(picture_.rent.fault, "");
    EXPECT_GT(picture_.rent.collected, Currency());
    EXPECT_EQ(picture_.rent.charged, Amount(flow, "June", 1));
    EXPECT_EQ(picture_.rent.collected, Amount(flow, "June", 2));

    // And the report adds up the rows of the ledgers.
    const std::string ofRent =
        "FROM RentLog WHERE Class IN (1, 2) AND Year(DateValue(DatePosted)) = 2026 AND Flags ";
    const Currency charged = Sum("SELECT Sum(Amount) " + ofRent + "<> 2");
    const Currency collected = -Sum("SELECT Sum(Amount) " + ofRent + "= 2");
    EXPECT_EQ(Amount(flow, "Charged"), charged);
    EXPECT_EQ(Amount(flow, "Collected"), collected);
    EXPECT_EQ(Amount(flow, "More charged than collected"), charged - collected);
}

TEST_F(PictureFigures, IncomeAndExpensesAreThoseOfTheMonthsInTheirReports) {
    std::map<int, FlowLines> flows;
    for (const int year : {2025, 2026}) {
        report.SelectedYear = std::to_string(year);
        flows[year] = Run("Cash Flow by Month.rpt");
    }
    EXPECT_EQ(picture_.flow.fault, "");
    ASSERT_EQ(picture_.flow.months.size(), 12U);
    EXPECT_EQ(picture_.flow.months.front().firstDay.ToText(), "07/01/2025");
    EXPECT_EQ(picture_.flow.months.back().firstDay.ToText(), "06/01/2026");
    for (const alerts::MonthsFlow& month : picture_.flow.months) {
        const std::string name = platform::FormatDate(month.firstDay, "mmmm");
        const FlowLines& flow = flows.at(month.firstDay.Year());
        EXPECT_GT(month.income, Currency()) << name;
        // The report shows whole cents.
        EXPECT_EQ(FormatMoney(month.income), FormatMoney(Amount(flow, name, 1))) << name;
        EXPECT_EQ(FormatMoney(month.expenses), FormatMoney(Amount(flow, name, 2))) << name;
    }
}

TEST_F(PictureFigures, DebtsAreTheFirstOfTheirReport) {
    const FlowLines flow = Run("Who Owes What.rpt");
    const auto rows = TableRows(flow, "Tenant");
    EXPECT_EQ(picture_.debts.fault, "");
    ASSERT_FALSE(picture_.debts.most.empty());
    ASSERT_GE(rows.size(), picture_.debts.most.size());
    for (std::size_t i = 0; i < picture_.debts.most.size(); ++i) {
        const alerts::Debtor& debtor = picture_.debts.most[i];
        EXPECT_EQ(debtor.tenant, rows[i].at(0));
        EXPECT_EQ(debtor.property, rows[i].at(1));
        EXPECT_EQ(debtor.amount, platform::StrToMoney(rows[i].at(7)));
    }
    EXPECT_EQ(picture_.debts.total, Amount(flow, "Total"));
}

} // namespace
