#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/MortgageUpkeep.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using mortgages::ChargeChoice;
using mortgages::MortgagePayment;
using mortgages::OpenedFrom;
using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class MortgagePaying : public testing::Test {
  protected:
    /// Pays everything open, and does what follows where it was opened.
    std::int32_t PayAll(OpenedFrom from) {
        MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
        SelectAll(payment, ChargeChoice::All, true);
        const std::int32_t id = SubmitMortgagePayment(payment, from);
        if (from == OpenedFrom::MortgageScreen) mortgages::RefreshMortgage(kMortgageId);
        return id;
    }

    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_{folder_.Path() / "db"};
};

TEST_F(MortgagePaying, ProposesOpenChargesWithNoneSelected) {
    SetMortgageField("EscrowAmount", "250");
    core::App().Connection.Execute(
        "INSERT INTO MortgageLog (IdMortgageLog, IdMortgage, IdTransaction, Flags, DatePosted, "
        "Total) VALUES (500, 999, 0, 1, '01/15/2024', 5)"); // of another mortgage
    RunMortgagesOn(Date(2024, 1, 20));
    const MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    EXPECT_EQ(payment.fromName, "First Bank");
    EXPECT_EQ(payment.toName, "Ann's Loans");
    EXPECT_EQ(payment.description, "Mortgage Payment for Elm's loan");
    EXPECT_EQ(payment.paymentType, "Mortgage Payment");
    EXPECT_EQ(payment.dateEffective, Date(2024, 1, 20));
    ASSERT_EQ(payment.charges.size(), 2U);
    EXPECT_EQ(payment.PaidAmount(), Currency());
    EXPECT_EQ(payment.FromPeriod(), 1);
    EXPECT_THROW(mortgages::ProposeMortgagePayment(999), platform::DatabaseError);
}

TEST_F(MortgagePaying, SelectsBasePaymentsWithoutGaps) {
    SetMortgageField("EscrowAmount", "250");
    RunMortgagesOn(Date(2024, 3, 20));
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    ASSERT_EQ(payment.charges.size(), 6U); // base and escrow, three times
    EXPECT_EQ(Select(payment, 4, true), "Previous base payments must be selected");
    EXPECT_FALSE(payment.charges[4].selected);
    EXPECT_EQ(Select(payment, 3, true), ""); // an escrow row, free of the rule
    EXPECT_EQ(Select(payment, 0, true), "");
    EXPECT_EQ(Select(payment, 2, true), "");
    EXPECT_EQ(Select(payment, 0, false), "Following base payments must not be selected");
    EXPECT_TRUE(payment.charges[0].selected);
    SelectAll(payment, ChargeChoice::BasePayments, false);
    EXPECT_EQ(payment.PaidAmount(), Currency::FromUnits(250));
    SelectAll(payment, ChargeChoice::All, true);
    EXPECT_EQ(payment.PaidAmount(), Currency::FromScaled(3 * (5995505 + 2500000)));
}

TEST_F(MortgagePaying, WritesTransactionLogAndMortgage) {
    SetMortgageField("xPri", "100.5,0");
    RunMortgagesOn(Date(2024, 2, 20));
    std::vector<std::int16_t> told;
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    payment.checkNumber = "77";
    payment.fromAccount = kLenderId;
    payment.fromName = "Somebody";
    Select(payment, 0, true);
    const core::NotifyToken token([&](std::int16_t kind, auto, auto) { told.push_back(kind); });
    const std::int32_t id = SubmitMortgagePayment(payment, OpenedFrom::Elsewhere);
    const std::string key = std::to_string(id);
    EXPECT_THAT(Rows("SELECT DateEffective, DebitType, DebitId, DebitDesc, CheckNum, CreditType, "
                     "CreditId, CreditDesc, Amount, TaxCategory, IEN, Description, Flags, Class, "
                     "Reconciled, IdMortgage, IdBuilding, IdTenant, DebitExported "
                     "FROM Transactions"),
                ElementsAre("02/20/2024|1|203|Somebody|77|1|203|Ann's Loans|700.0505|Mortgage "
                            "Payment|1|Mortgage Payment for Elm's loan|0|5|False|201|202|0|False"));
    EXPECT_THAT(Rows("SELECT Period, Category, Description, Principal, PayDown, Interest, Other, "
                     "Total, Flags, DatePosted FROM MortgageLog WHERE Flags = 2"),
                ElementsAre("0|Mortgage Payment|Mortgage Payment|0|0|0|-700.0505|-700.0505|2|"
                            "02/20/2024"));
    EXPECT_THAT(Rows("SELECT Period, IdTransaction FROM MortgageLog WHERE Flags = 1 "
                     "ORDER BY Period"),
                ElementsAre("1|" + key, "2|0"));
    EXPECT_THAT(Rows("SELECT IdLastPmt, CurrentPeriod, NextDue, PmtStatus FROM Mortgage"),
                ElementsAre("203|2|02/15/2024|Late"));
    EXPECT_THAT(told, testing::IsSupersetOf({10, 23, 3}));
}

TEST_F(MortgagePaying, RefreshesTheSplitAndKeepsTheTotal) {
    RunMortgagesOn(Date(2024, 2, 20));
    // Extra principal entered by hand on the first base payment lowers the second's interest.
    core::App().Connection.Execute(
        "UPDATE MortgageLog SET PayDown = 1000, Total = Total + 1000 WHERE Period = 1");
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    Select(payment, 0, true);
    SubmitMortgagePayment(payment, OpenedFrom::Elsewhere);
    EXPECT_THAT(Rows("SELECT Principal, PayDown, Interest, Total FROM MortgageLog "
                     "WHERE Flags = 1 ORDER BY Period"),
                ElementsAre("99.5505|1000|500|1599.5505", "105.0483|0|494.5022|599.5505"));
    EXPECT_THAT(Rows("SELECT CurrentPV FROM Mortgage"),
                ElementsAre(testing::StartsWith("98900.449")));
}

TEST_F(MortgagePaying, AStoredPaymentShowsTheSameAmountAndNeverMovesThePeriodAgain) {
    SetMortgageField("EscrowAmount", "250");
    RunMortgagesOn(Date(2024, 2, 20));
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    Select(payment, 0, true);
    const std::int32_t id = SubmitMortgagePayment(payment, OpenedFrom::Elsewhere);

    MortgagePayment stored = mortgages::ReadMortgagePayment(id);
    EXPECT_EQ(stored.PaidAmount(), payment.PaidAmount());
    ASSERT_EQ(stored.charges.size(), 4U);
    Select(stored, 1, true); // the escrow joins it
    Select(stored, 2, true);
    stored.description = "Both months";
    EXPECT_EQ(SubmitMortgagePayment(stored, OpenedFrom::Elsewhere), id);
    EXPECT_THAT(Rows("SELECT Amount, Description FROM Transactions"),
                ElementsAre("1449.101|Both months"));
    EXPECT_THAT(Rows("SELECT Total, Category, Description FROM MortgageLog WHERE Flags = 2"),
                ElementsAre("-1449.101|Mortgage Payment|Both months"));
    EXPECT_THAT(Rows("SELECT CurrentPeriod, NextDue FROM Mortgage"), ElementsAre("2|02/15/2024"));

    stored = mortgages::ReadMortgagePayment(id);
    SelectAll(stored, ChargeChoice::All, false);
    SubmitMortgagePayment(stored, OpenedFrom::Elsewhere);
    EXPECT_THAT(Rows("SELECT Count(*) FROM MortgageLog WHERE IdTransaction = 0"), ElementsAre("4"));
    EXPECT_THAT(Rows("SELECT CurrentPeriod FROM Mortgage"), ElementsAre("2"));
    EXPECT_THROW(mortgages::ReadMortgagePayment(12345), platform::DatabaseError);
}

TEST_F(MortgagePaying, AChargeThatHasGoneLeavesTheBooksAsTheyWere) {
    RunMortgagesOn(Date(2024, 1, 20));
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    Select(payment, 0, true);
    core::App().Connection.Execute("DELETE * FROM MortgageLog");
    const auto before = Rows("SELECT * FROM Mortgage");
    EXPECT_THROW(SubmitMortgagePayment(payment, OpenedFrom::Elsewhere), platform::Error);
    EXPECT_EQ(Rows("SELECT * FROM Mortgage"), before);
    EXPECT_THAT(Rows("SELECT * FROM Transactions"), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

class PaidFrom : public MortgagePaying, public testing::WithParamInterface<OpenedFrom> {};

TEST_P(PaidFrom, TwelvePaymentsInARowLeaveTwelveMonthsCharged) {
    std::vector<std::string> expected;
    for (int month = 0; month < 12; ++month) {
        const Date due = DateAdd(Interval::Month, month, Date(2024, 1, 15));
        // Paid now on the day, now before the next one falls due.
        RunMortgagesOn(DateAdd(Interval::Day, month % 3 * 9, due));
        PayAll(GetParam());
        expected.push_back(due.ToText() + "|Mortgage Payment|" + std::to_string(month + 1) +
                           "|599.55");
    }
    EXPECT_EQ(Rows("SELECT DatePosted, Category, Period, Format(Total, '0.00') FROM MortgageLog "
                   "WHERE Flags = 1 ORDER BY Period"),
              expected);
    EXPECT_THAT(Rows("SELECT IdTransaction <> 0 FROM MortgageLog"), Each("True"));
    EXPECT_THAT(Rows("SELECT CurrentPeriod, NextDue, RemainingT, Status, PmtStatus FROM Mortgage"),
                ElementsAre("13|01/15/2025|348|Current|OK"));
}

TEST_P(PaidFrom, APaidPayoffClosesTheMortgage) {
    // Amounts whose fourth decimal rounds up and down, early, interest alone, in the last period,
    // and past the 360th.
    const struct {
        const char* rate;
        const char* periods;
        const char* interestOnly;
        int period;
    } kCases[] = {{"0.06", "360", "False", 1},     {"0.0625", "360", "False", 14},
                  {"0.07125", "180", "False", 77}, {"0.05", "360", "True", 5},
                  {"0.0433", "360", "False", 360}, {"0", "120", "False", 50},
                  {"0.05", "480", "False", 401}};
    for (const auto& payoff : kCases) {
        SCOPED_TRACE(std::string(payoff.rate) + " " + std::to_string(payoff.period));
        const support::TemporaryFolder folder;
        core::App().Connection.Close();
        const BooksWithOneMortgage books(folder.Path() / "db");
        SetMortgageField("OrigRate", payoff.rate);
        SetMortgageField("OrigPer", payoff.periods);
        SetMortgageField("IntOnly", payoff.interestOnly);
        SetMortgageField("CurrentPeriod", std::to_string(payoff.period));
        const Date today = DateAdd(Interval::Month, payoff.period - 1, Date(2024, 1, 10));
        SetMortgageField("DateUpdated", today.ToText());
        platform::SetToday(today);
        mortgages::RefreshMortgage(kMortgageId);
        core::App().Connection.Execute(
            "INSERT INTO MortgageLog (IdMortgageLog, IdMortgage, IdTransaction, Flags, DatePosted, "
            "Total) VALUES (500, 201, 0, 0, '01/15/2024', 5)");
        ASSERT_EQ(mortgages::PostPayoff(kMortgageId), mortgages::PayoffResult::Posted);
        EXPECT_THAT(Rows("SELECT Category, Flags, Period, Total - Principal - PayDown - Interest "
                         "FROM MortgageLog"),
                    ElementsAre("Mortgage Payoff|1|" + std::to_string(payoff.period) + "|0"));
        PayAll(GetParam());
        EXPECT_THAT(Rows("SELECT Status, PmtStatus, CurrentPV, NextDue FROM Mortgage"),
                    ElementsAre("Closed|n/a|0|"));
        const auto log = Log();
        RunMortgagesOn(DateAdd(Interval::Year, 2, today));
        EXPECT_EQ(Log(), log); // nothing more is charged
        EXPECT_THAT(Rows("SELECT Status FROM Mortgage"), ElementsAre("Closed"));
    }
}

INSTANTIATE_TEST_SUITE_P(Places, PaidFrom,
                         testing::Values(OpenedFrom::MortgageScreen, OpenedFrom::Elsewhere));

TEST_F(MortgagePaying, APayoffOfARowWithoutListsClosesToo) {
    for (const char* field : {"xPri", "xRate"})
        SetMortgageField(field, "");
    SetMortgageField("CurrentPPmt", "99.55");
    ASSERT_EQ(mortgages::PostPayoff(kMortgageId), mortgages::PayoffResult::Posted);
    PayAll(OpenedFrom::Elsewhere);
    EXPECT_THAT(Rows("SELECT Status, CurrentPV FROM Mortgage"), ElementsAre("Closed|0"));
}

TEST_F(MortgagePaying, APayoffWithoutFiguresRemovesNothing) {
    RunMortgagesOn(Date(2024, 1, 20));
    SetMortgageField("CurrentPV", "NULL");
    EXPECT_EQ(mortgages::PostPayoff(kMortgageId), mortgages::PayoffResult::NotFound);
    EXPECT_EQ(Log().size(), 1U);
}

TEST_F(MortgagePaying, APaymentKeepsTheBalloonOnRecord) {
    SetMortgageField("BalloonMtg", "True");
    SetMortgageField("BalloonPer", "24");
    SetMortgageField("BalloonPmt", "97456.25");
    RunMortgagesOn(Date(2024, 1, 20));
    PayAll(OpenedFrom::Elsewhere);
    EXPECT_THAT(Rows("SELECT BalloonMtg, BalloonPer, BalloonPmt, CurrentPeriod FROM Mortgage"),
                ElementsAre("True|24|97456.25|2"));
}

} // namespace

} // namespace tests
