#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "mortgages/LoanMath.h"
#include "mortgages/clsMortgage.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"

namespace tests {

namespace {

using mortgages::AmortPeriod;
using mortgages::clsMortgage;
using platform::Date;

class Schedule : public testing::Test {
  protected:
    void SetUp() override { platform::SetToday(Date(2024, 3, 15)); }
    void TearDown() override { platform::SetToday({}); }
};

clsMortgage Loan(double amount, double periods, double percent) {
    clsMortgage loan;
    loan.SetOrigPV(amount);
    loan.SetOrigPer(periods);
    loan.SetOrigRate(percent);
    loan.ReCalc();
    return loan;
}

using Exact = long double;

/// Equal to a billionth; what nears nothing is measured by `scale`.
void ExpectClose(double actual, long double expected, long double scale) {
    const long double allowed = 1e-9L * std::max(std::fabs(expected), scale);
    EXPECT_LE(std::fabs(static_cast<Exact>(actual) - expected), allowed)
        << actual << " is not " << static_cast<double>(expected);
}

struct LoanCase {
    const char* name;
    double amount;
    double periods;
    double percent;
    bool interestOnly;
    std::vector<long double> extra;
    std::vector<long double> rates; ///< of an adjustable loan, by period
};

void SetRates(clsMortgage& loan, const std::vector<long double>& rates) {
    loan.SetARM(!rates.empty());
    for (std::size_t i = 1; i < rates.size(); ++i) {
        if (rates[i] != rates[i - 1])
            loan.SetRate(static_cast<int>(i) + 1, static_cast<double>(rates[i]));
    }
}

std::vector<long double> Steps(std::initializer_list<std::pair<int, long double>> steps) {
    std::vector<long double> list;
    for (const auto& [count, value] : steps)
        list.insert(list.end(), static_cast<std::size_t>(count), value);
    return list;
}

TEST_F(Schedule, AgreesWithAnIndependentReckoning) {
    const LoanCase kCases[] = {
        {"thirty years", 100'000, 360, 5, false, {}, {}},
        {"fifteen years", 212'345.67, 180, 7.125, false, {}, {}},
        {"a hundred years", 250'000, 1200, 4, false, {}, {}},
        {"dear and short", 9'999'999, 24, 30, false, {}, {}},
        {"hardly any interest", 50'000, 120, 0.0001, false, {}, {}},
        {"no interest", 36'000, 360, 0, false, {}, {}},
        {"one period", 1'000, 1, 12, false, {}, {}},
        {"a cent's worth", 1, 12, 9, false, {}, {}},
        {"extra now and then", 150'000, 360, 6.5, false, {0, 500, 0, 0, 10'000, 1.23L}, {}},
        {"extra every month", 80'000, 240, 5.5, false, Steps({{240, 150.0L}}), {}},
        {"paid off by one extra", 60'000, 120, 6, false, Steps({{30, 0}, {1, 1e6L}}), {}},
        {"interest alone", 100'000, 60, 6, true, {}, {}},
        {"interest alone, paid down", 100'000, 60, 6, true, {0, 0, 25'000}, {}},
        {"adjusted up and down",
         200'000,
         360,
         4,
         false,
         {},
         Steps({{12, .04L}, {12, .055L}, {24, .07L}, {1, .035L}})},
        {"adjusted with extra",
         200'000,
         360,
         4,
         false,
         {0, 0, 900, 0, 5'000},
         Steps({{6, .04L}, {1, .06L}})},
        {"interest alone, adjusted",
         100'000,
         48,
         6,
         true,
         {0, 0, 20'000},
         Steps({{12, .06L}, {1, .08L}})},
        {"adjusted in the last period", 10'000, 12, 6, false, {}, Steps({{11, .06L}, {1, .09L}})},
    };
    for (const LoanCase& loanCase : kCases) {
        SCOPED_TRACE(loanCase.name);
        clsMortgage loan = Loan(loanCase.amount, loanCase.periods, loanCase.percent);
        loan.SetIntOnly(loanCase.interestOnly);
        SetRates(loan, loanCase.rates);
        for (std::size_t i = 0; i < loanCase.extra.size(); ++i)
            loan.SetXPri(static_cast<int>(i) + 1, static_cast<double>(loanCase.extra[i]));
        loan.ReCalc();

        ReferenceLoan reference{.balance = static_cast<Exact>(loanCase.amount),
                                .periods = static_cast<Exact>(loanCase.periods),
                                .rates = loanCase.rates,
                                .extra = loanCase.extra,
                                .interestOnly = loanCase.interestOnly};
        if (reference.rates.empty()) reference.rates = {static_cast<Exact>(loanCase.percent / 100)};
        const auto expected = Amortise(reference, static_cast<int>(loanCase.periods));
        ASSERT_EQ(loan.Schedule().size(), expected.size());
        const long double scale = expected.front().payment;
        for (std::size_t i = 0; i < expected.size() && !HasFailure(); ++i) {
            SCOPED_TRACE(i + 1);
            const AmortPeriod& row = loan.Schedule()[i];
            // The last payment of a loan that isn't cut short is the level one.
            ExpectClose(row.Pmt, expected[i].payment, scale);
            ExpectClose(row.Pri, expected[i].principal, scale);
            ExpectClose(row.XPri, expected[i].extra, scale);
            ExpectClose(row.Int, expected[i].interest, scale);
            ExpectClose(row.EndBal, expected[i].balance, scale);
        }
    }
}

TEST_F(Schedule, KnowsThePaymentsOfLendersTables) {
    const struct {
        double amount;
        double periods;
        double percent;
        double payment;
    } kCases[] = {{100'000, 360, 8, 733.76}, {200'000, 360, 6, 1199.10},
                  {100'000, 360, 5, 536.82}, {165'000, 360, 4.5, 836.03},
                  {20'000, 60, 7.5, 400.76}, {1'000, 12, 12, 88.85},
                  {100'000, 180, 6, 843.86}, {12'000, 12, 0, 1000.00}};
    for (const auto& expected : kCases) {
        const clsMortgage loan = Loan(expected.amount, expected.periods, expected.percent);
        EXPECT_NEAR(loan.OrigPmt(), expected.payment, 0.005) << expected.amount;
    }
}

TEST_F(Schedule, BalancesFollowTheClosedForm) {
    const struct {
        double amount;
        int periods;
        double percent;
    } kCases[] = {{180'000, 360, 6.25}, {1'000'000, 1200, 30}, {50'000, 1200, 3}, {1, 2, 0.01}};
    for (const auto& loanCase : kCases) {
        SCOPED_TRACE(loanCase.percent);
        const clsMortgage loan = Loan(loanCase.amount, loanCase.periods, loanCase.percent);
        // What is left is the value of the payments to come.
        const long double growth = std::log1p(static_cast<Exact>(loanCase.percent) / 1200);
        const long double whole = std::expm1(-loanCase.periods * growth);
        for (int paid = 1; paid < loanCase.periods; ++paid) {
            const long double share = std::expm1((paid - loanCase.periods) * growth) / whole;
            ExpectClose(loan.GetPV(paid + 1), static_cast<Exact>(loanCase.amount) * share, 0);
            if (HasFailure()) break;
        }
        EXPECT_NEAR(loan.GetPriTTD(0), loan.Schedule().front().Pri, 1e-9);
        EXPECT_NEAR(loan.GetPriTTD(loanCase.periods), loanCase.amount, 1e-9 * loanCase.amount);
        EXPECT_NEAR(loan.GetIntTTD(5000), loanCase.periods * loan.OrigPmt() - loanCase.amount,
                    1e-9 * loanCase.periods * loan.OrigPmt());
    }
}

TEST_F(Schedule, BalloonStopsTheFullTermsScheduleEarly) {
    const clsMortgage plain = Loan(100'000, 360, 7);
    clsMortgage loan = plain;
    loan.SetBalloon(true);
    loan.SetBalloonPer(84);
    loan.ReCalc();
    EXPECT_EQ(loan.GetPeriods(), 84);
    EXPECT_EQ(loan.BalloonPmt(), plain.Schedule()[83].EndBal);
    EXPECT_EQ(loan.OrigPmt(), plain.OrigPmt());

    loan.SetBalloonPer(500);
    loan.ReCalc();
    EXPECT_EQ(loan.GetPeriods(), 360);
    EXPECT_NEAR(loan.BalloonPmt(), 0, 1e-4);

    loan.SetBalloonPer(0);
    loan.ReCalc();
    EXPECT_EQ(loan.GetPeriods(), 360);
    EXPECT_EQ(loan.BalloonPmt(), 0);
}

TEST_F(Schedule, ExtraPrincipalEndsTheLoanEarly) {
    clsMortgage loan = Loan(10'000, 120, 6);
    const int held = loan.ArraySize();
    loan.SetXPri(0, 200);
    loan.SetXPri(3, 50); // a period's own amount stands for that of all
    loan.ReCalc();
    EXPECT_LT(loan.GetPeriods(), 45);
    EXPECT_EQ(loan.ArraySize(), held);
    EXPECT_EQ(loan.Schedule()[2].XPri, 50);
    EXPECT_EQ(loan.Schedule()[3].XPri, 200);
    const AmortPeriod& last = loan.Schedule().back();
    EXPECT_EQ(last.EndBal, 0);
    EXPECT_DOUBLE_EQ(last.Pri + last.XPri, last.BeginBal);
    EXPECT_EQ(last.Pmt, last.Pri + last.Int);

    // Without it the schedule has its old length again.
    loan.ClearXPri();
    loan.ReCalc();
    EXPECT_EQ(loan.GetPeriods(), 120);
}

TEST_F(Schedule, IsDueOnTheDayReckonedFromTheOneBefore) {
    const struct {
        const char* first;
        std::vector<std::string> due;
    } kCases[] = {
        {"01/31/2023", {"01/31/2023", "02/28/2023", "03/28/2023", "04/28/2023"}},
        {"01/31/2024", {"01/31/2024", "02/29/2024", "03/29/2024"}},
        {"3/31/2023", {"03/31/2023", "04/30/2023", "05/30/2023"}},
        {"11/15/2023", {"11/15/2023", "12/15/2023", "01/15/2024"}},
    };
    for (const auto& dueCase : kCases) {
        clsMortgage loan;
        loan.SetFirstDue(dueCase.first);
        loan.ReCalc();
        for (std::size_t i = 0; i < dueCase.due.size(); ++i)
            EXPECT_EQ(loan.Schedule()[i].Due.View(), dueCase.due[i]);
    }
}

TEST_F(Schedule, SumsByCalendarYearAndFromTheStart) {
    clsMortgage loan = Loan(24'000, 24, 6);
    loan.SetFirstDue("11/01/2023");
    loan.SetXPri(4, 100);
    loan.ReCalc();
    double paid = 0;
    double principal = 0;
    double interest = 0;
    double inYear = 0;
    for (const AmortPeriod& row : loan.Schedule()) {
        inYear = row.Due.View().starts_with("01") ? row.Pmt : inYear + row.Pmt;
        paid += row.Pmt;
        principal += row.Pri + row.XPri;
        interest += row.Int;
        if (row.EndBal == 0) break; // its sums keep what was reckoned before the cut
        ASSERT_NEAR(row.PmtYTD, inYear, 1e-9);
        ASSERT_NEAR(row.PmtTTD, paid, 1e-9);
        ASSERT_NEAR(row.PriTTD, principal, 1e-9);
        ASSERT_NEAR(row.IntTTD, interest, 1e-9);
    }
    EXPECT_EQ(loan.GetIntYTD("2023"), loan.Schedule()[1].IntTTD);
    EXPECT_EQ(loan.GetPriYTD(""), loan.Schedule()[13].PriYTD); // the present year, 2024
    EXPECT_EQ(loan.GetPriYTD("2022"), 0);
}

TEST_F(Schedule, SetsOffAtMostOnePenaltyAYear) {
    clsMortgage loan = Loan(100'000, 360, 5);
    loan.SetFirstDue("10/01/2023");
    loan.SetPPM(true);
    loan.SetPPMPct(2);
    loan.SetPPMTrigger(20);
    loan.SetPPMPer(18);
    for (const int period : {2, 3, 6, 8, 20})
        loan.SetXPri(period, 19'900);
    loan.ReCalc();
    std::vector<int> penalties;
    for (std::size_t i = 0; i < loan.Schedule().size(); ++i) {
        if (loan.Schedule()[i].Penalty == 0) continue;
        EXPECT_DOUBLE_EQ(loan.Schedule()[i].Penalty, 2'000);
        penalties.push_back(static_cast<int>(i) + 1);
    }
    // Each extra alone falls short of the trigger, and the scheduled principal of its calendar year
    // makes up for it. Once a year, and not past the 18th period.
    EXPECT_EQ(penalties, (std::vector<int>{2, 6}));

    loan.SetPPMTrigger(0);
    loan.SetPPMPer(0);
    loan.ReCalc();
    EXPECT_GT(loan.Schedule().front().Penalty, 0);
    EXPECT_EQ(loan.Schedule()[1].Penalty, 0);
}

TEST_F(Schedule, AdjustsByHandReckonedFigures) {
    // 12,000.00 over a year at 12 percent, 6 percent from the seventh month on: the payment is
    // 1,066.1855; after six of them 6,179.0528 is left, which at half a percent a month over six
    // takes 1,047.9393.
    clsMortgage loan = Loan(12'000, 12, 12);
    loan.SetARM(true);
    loan.SetRate(7, 0.06);
    loan.ReCalc();
    EXPECT_NEAR(loan.Schedule()[5].Pmt, 1066.1855, 0.00005);
    EXPECT_NEAR(loan.Schedule()[5].EndBal, 6179.0528, 0.00005);
    EXPECT_NEAR(loan.Schedule()[6].Pmt, 1047.9393, 0.00005);
    EXPECT_NEAR(loan.Schedule()[6].Int, 30.8953, 0.00005);
    EXPECT_NEAR(loan.Schedule()[11].EndBal, 0, 1e-8);
    EXPECT_EQ(loan.GetRate(6), 12);
    EXPECT_EQ(loan.GetRate(7), 6);
    EXPECT_EQ(loan.GetRate(13), 0);

    loan.SetARMLockedPer(3);
    loan.SetARMAdjPer(4);
    loan.SetARMPerCap(2);
    loan.SetARMLifeCap(5);
    loan.SetMaxRates();
    const std::vector<double> highest = {12, 12, 12, 14, 14, 14, 14, 16, 16, 16, 16, 17};
    for (int i = 1; i <= 12; ++i)
        EXPECT_NEAR(loan.GetRate(i), highest[static_cast<std::size_t>(i) - 1], 1e-9) << i;
    loan.ClearRate();
    EXPECT_EQ(loan.GetRate(12), 12);
}

TEST_F(Schedule, RefusesLoansThatCannotBeReckoned) {
    clsMortgage loan;
    double periods = 0;
    double payment = 400; // the first month's interest alone is 416.67
    EXPECT_THROW(loan.CreateMtg("01/01/2024", 100'000, periods, 0.05, payment, false, false),
                 platform::Error);
    // Borrowing more makes the payment too small; what was built until then stands.
    clsMortgage growing = Loan(100'000, 360, 6);
    growing.SetXPri(5, -50'000);
    EXPECT_THROW(growing.ReCalc(), platform::Error);
    EXPECT_EQ(growing.Schedule().size(), 6U);
    clsMortgage undated;
    undated.SetFirstDue("soon");
    EXPECT_THROW(undated.ReCalc(), platform::Error);
}

} // namespace

} // namespace tests
