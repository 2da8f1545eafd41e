#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "mortgages/AmortGrid.h"
#include "mortgages/DoubleList.h"
#include "mortgages/ScheduleYears.h"
#include "mortgages/clsMortgage.h"
#include "platform/system/Clock.h"

namespace tests {

namespace {

using mortgages::clsMortgage;
using platform::Currency;
using platform::Date;

class Terms : public testing::Test {
  protected:
    void SetUp() override { platform::SetToday(Date(2024, 3, 15)); }
    void TearDown() override { platform::SetToday({}); }
};

TEST_F(Terms, BeginAsAnOrdinaryLoanOfThisMonth) {
    const clsMortgage loan;
    EXPECT_EQ(loan.Description(), "New Mortgage");
    EXPECT_EQ(loan.FirstDue(), "03/01/2024");
    EXPECT_EQ(loan.GetPeriods(), 360);
    EXPECT_EQ(loan.ArraySize(), 360);
    EXPECT_EQ(loan.OrigRate(), 5);
    EXPECT_NEAR(loan.OrigPmt(), 536.8216, 0.00005);
    EXPECT_EQ(loan.NextDue(), Date(2024, 3, 1));
}

TEST_F(Terms, KeepWithinTheirLimits) {
    clsMortgage loan;
    const auto expect = [&](auto set, auto get, double given, double kept) {
        (loan.*set)(given);
        EXPECT_DOUBLE_EQ((loan.*get)(), kept) << given;
    };
    using M = clsMortgage;
    expect(&M::SetOrigPV, &M::OrigPV, 0.5, 1);
    expect(&M::SetOrigPV, &M::OrigPV, 1e8, 1e7);
    expect(&M::SetOrigPer, &M::OrigPer, 0, 1);
    expect(&M::SetOrigPer, &M::OrigPer, 1201, 1200);
    expect(&M::SetOrigRate, &M::OrigRate, -1, 0);
    expect(&M::SetOrigRate, &M::OrigRate, 31, 30);
    expect(&M::SetPPMPct, &M::PPMPct, 101, 100);
    expect(&M::SetPPMPct, &M::PPMPct, -1, 0);
    expect(&M::SetPPMTrigger, &M::PPMTrigger, 250, 100);
    expect(&M::SetARMLifeCap, &M::ARMLifeCap, -6, 0);
    expect(&M::SetARMPerCap, &M::ARMPerCap, -2, 0);
    loan.SetARMLockedPer(-1);
    loan.SetARMAdjPer(-1);
    EXPECT_EQ(loan.ARMLockedPer(), 0);
    EXPECT_EQ(loan.ARMAdjPer(), 0);
    loan.SetCurrentPeriod(0);
    EXPECT_EQ(loan.CurrentPeriod(), 1);
    loan.SetCurrentPeriod(361);
    EXPECT_EQ(loan.CurrentPeriod(), 360);
    loan.SetDescription(std::string(60, 'x'));
    EXPECT_EQ(loan.Description(), std::string(50, 'x'));
    loan.SetFirstDue("01/31/2024 noon");
    EXPECT_EQ(loan.FirstDue(), "01/31/2024");
}

TEST_F(Terms, ANewRateIsEveryPeriods) {
    clsMortgage loan;
    loan.SetARM(true);
    loan.SetRate(1, 0.2); // the first period's rate isn't set
    loan.SetRate(10, 0.4);
    loan.ReCalc();
    EXPECT_EQ(loan.GetRate(1), 5);
    EXPECT_EQ(loan.GetRate(9), 5);
    EXPECT_EQ(loan.GetRate(10), 30);
    EXPECT_EQ(loan.GetRate(360), 30);
    loan.SetOrigRate(5); // no new rate
    EXPECT_EQ(loan.GetRate(10), 30);
    loan.SetOrigRate(6);
    EXPECT_EQ(loan.GetRate(10), 6);
}

TEST_F(Terms, AnswerZeroOutsideTheSchedule) {
    clsMortgage loan;
    loan.SetCurrentPeriod(360);
    loan.SetXPri(12, 1e6);
    loan.ReCalc(); // paid off in the twelfth period, the current one stands past it
    EXPECT_EQ(loan.GetPeriods(), 12);
    EXPECT_EQ(loan.GetPeriodsRemaining(), 12 - 360 + 1);
    EXPECT_FALSE(loan.NextDue().IsSet());
    EXPECT_EQ(loan.GetPV(0), 0);
    EXPECT_EQ(loan.GetRate(0), 0);
    EXPECT_EQ(loan.GetPMT(0), Currency());
    EXPECT_EQ(loan.GetPPMT(13), Currency());
    EXPECT_EQ(loan.GetIPMT(-1), Currency());
    EXPECT_EQ(loan.GetPriTTD(0), loan.GetPriTTD(12));
    EXPECT_EQ(loan.GetPriTTD(-1), 0);
    EXPECT_EQ(loan.GetXPRI(361), 0);
    loan.SetXPri(361, 5); // skipped
    EXPECT_EQ(loan.ArraySize(), 360);
}

TEST_F(Terms, TellPeriodAndStatusByTheCalendarMonth) {
    clsMortgage loan;
    loan.SetFirstDue("02/20/2024");
    loan.SetOrigPer(12);
    loan.ReCalc();
    const struct {
        Date day;
        int period;
        const char* status;
    } kCases[] = {{Date(2024, 1, 31), 0, "Pending"},
                  {Date(2024, 2, 1), 1, "Current"},
                  {Date(2024, 3, 31), 2, "Current"},
                  {Date(2025, 1, 31), 12, "Current"},
                  {Date(2025, 2, 1), 0, "Closed"}};
    for (const auto& expected : kCases) {
        EXPECT_EQ(loan.GetPeriod(expected.day), expected.period) << expected.day.ToText();
        EXPECT_EQ(loan.GetStatus(expected.day), expected.status) << expected.day.ToText();
    }
    EXPECT_EQ(loan.GetPMT(1), Currency::FromDouble(loan.Schedule()[0].Pmt));
}

TEST_F(Terms, ALoanSetUpFromScratchFollowsItsPaymentOrItsTerm) {
    clsMortgage loan;
    double periods = 360;
    double payment = 0;
    loan.CreateMtg("05/01/2024", 100'000, periods, 0.08, payment, false, false);
    EXPECT_NEAR(payment, 733.7646, 0.00005);
    EXPECT_EQ(loan.GetPeriods(), 360);

    payment = 1000;
    loan.CreateMtg("05/01/2024", 100'000, periods, 0.08, payment, false, false);
    EXPECT_NEAR(periods, 165.34, 0.005); // -ln(1 - 100000 * 0.08 / 12 / 1000) / ln(1 + 0.08 / 12)
    EXPECT_EQ(loan.GetPeriods(), 165);
    EXPECT_NEAR(loan.OrigPmt(), 1000, 1e-9);
    EXPECT_EQ(loan.ArraySize(), 165);

    loan.CreateMtg("05/01/2024", 100'000, periods = 60, 0.06, payment, true, true);
    EXPECT_DOUBLE_EQ(payment, -6000); // a year's interest, turned
    EXPECT_DOUBLE_EQ(loan.OrigPmt(), 500);
    EXPECT_EQ(loan.GetRate(60), 6);
}

TEST_F(Terms, AlignWithALendersBalance) {
    const auto balanced = [](Date day, double balance, double rate) {
        clsMortgage loan;
        loan.SetFirstDue("01/01/2024");
        loan.SetOrigPer(24);
        loan.SetARM(true);
        loan.ReCalc();
        loan.BalanceMtg(day, balance, rate);
        return loan;
    };
    const clsMortgage plain = balanced(Date(2023, 1, 1), 0, 0);
    const clsMortgage lower = balanced(Date(2024, 6, 10), 70'000, 0.07);
    EXPECT_NEAR(lower.GetPV(6), 70'000, 1e-9);
    EXPECT_DOUBLE_EQ(lower.GetXPRI(5), plain.GetPV(6) - 70'000);
    EXPECT_EQ(lower.GetRate(5), 5);
    EXPECT_DOUBLE_EQ(lower.GetRate(6), 7);

    const clsMortgage higher = balanced(Date(2024, 6, 10), 90'000, 0.05);
    EXPECT_EQ(higher.GetPV(6), plain.GetPV(6));
    EXPECT_EQ(higher.GetXPRI(5), 0);
    for (const Date day : {Date(2024, 1, 1), Date(2025, 12, 1)}) { // the first and the last period
        const clsMortgage same = balanced(day, 10, 0.09);
        EXPECT_EQ(same.GetPV(24), plain.GetPV(24)) << day.ToText();
        EXPECT_EQ(same.GetRate(24), 5) << day.ToText();
    }
}

TEST(DoubleList, ReadsWhatItWroteAndWhatPeopleWrote) {
    using mortgages::JoinDoubleList;
    using mortgages::SplitDoubleList;
    const std::vector<double> numbers = {0, 250.5, -1e-7, 0.1, 1e20, 1.0 / 3};
    std::vector<double> back;
    EXPECT_EQ(SplitDoubleList(JoinDoubleList(numbers), back), numbers.size());
    EXPECT_EQ(back, numbers);
    EXPECT_EQ(JoinDoubleList({}), "");

    const struct {
        const char* text;
        std::vector<double> numbers;
    } kCases[] = {{"", {}},
                  {"   ", {}},
                  {"7", {7}},
                  {"0.05, 0.06 ,x,nan,inf,-2.5abc,,+3", {.05, .06, 0, 0, 0, -2.5, 0, 3}},
                  {"1,", {1, 0}},
                  {",", {0, 0}},
                  {".5,1e2,-", {.5, 100, 0}}};
    for (const auto& listCase : kCases) {
        EXPECT_EQ(SplitDoubleList(listCase.text, back), listCase.numbers.size()) << listCase.text;
        EXPECT_EQ(back, listCase.numbers) << listCase.text;
    }
}

std::string Captions(const mortgages::AmortGrid& grid) {
    std::string captions;
    for (const auto& column : grid.Columns())
        captions += column.caption + ";";
    return captions;
}

TEST_F(Terms, ShowTheYearsByTheFirstPeriodAndThenEachYearsEnd) {
    clsMortgage loan;
    // Half a year too many rounds to the even count of years.
    for (const auto& [periods, years] : {std::pair{1, 1}, {11, 1}, {18, 2}, {30, 2}, {42, 4}}) {
        loan.SetOrigPer(periods);
        loan.ReCalc();
        EXPECT_EQ(mortgages::ScheduleYears(loan).size(), static_cast<std::size_t>(years))
            << periods;
    }
    const auto points = mortgages::ScheduleYears(loan);
    EXPECT_EQ(points[0].label, "Year 1");
    EXPECT_EQ(points[0].balance, 100'000);
    EXPECT_EQ(points[3].label, "Year 4");
    EXPECT_EQ(points[3].balance, loan.GetPV(36));
    EXPECT_EQ(points[3].principal, loan.GetPriTTD(36));
    EXPECT_EQ(points[3].interest, loan.GetIntTTD(36));
}

TEST_F(Terms, ShowTheScheduleByItsViewOptions) {
    const clsMortgage loan;
    EXPECT_EQ(Captions(*loan.ShowGrid({})), "No.;Rate;Pmt;Xtra Pri;Balance;");
    EXPECT_EQ(Captions(*loan.ShowGrid({.showDue = true, .showDetail = true})),
              "No.;Due;Rate;Pmt;Pri;Xtra Pri;Int;Balance;Remaining;PPM Penalty;");
    EXPECT_EQ(Captions(*loan.ShowGrid({.showYear = true, .showTotal = true})),
              "No.;Rate;Pmt;Pmt Yr;Pmt TTD;Xtra Pri;Pri Yr;Pri TTD;Int Yr;Int TTD;Balance;");

    std::vector<std::vector<std::string>> table;
    std::string header;
    std::string format;
    loan.GetAmortization(table, header, format, false);
    EXPECT_EQ(header, "No.|Rate|Pmt|Pri|Xtra Pri|Int|Balance|Remaining");
    EXPECT_EQ(format, "<~12.5%|>~12.5%|>~12.5%|>~12.5%|>~12.5%|>~12.5%|>~12.5%|>~12.5%");
    ASSERT_EQ(table.size(), 360U);
    EXPECT_EQ(table[0], (std::vector<std::string>{"1", "5.00", "536.82", "120.15", "0.00", "416.67",
                                                  "99,879.85", "359"}));
    loan.GetAmortization(table, header, format, true);
    EXPECT_EQ(header,
              "No.|Rate|Pmt|Pri|Xtra Pri|Int|Balance|Remaining|Due|Pmt Yr|Pmt TTD|Pri Yr|Pri TTD|"
              "Int Yr|Int TTD|PPM Penalty");
    EXPECT_TRUE(format.starts_with("<~6.25%|>~6.25%|"));
    EXPECT_EQ(table[10][8], "01/01/2025");
    EXPECT_EQ(table[10][9], "536.82");
}

} // namespace

} // namespace tests
