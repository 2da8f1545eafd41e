#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "leases/Crashes.h"
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
using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class MortgagePaying : public testing::Test {
  protected:
    /// Pays everything open, and this much beyond it.
    static std::int32_t PayAll(Currency extra = {}) {
        MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
        SelectAll(payment, ChargeChoice::All, true);
        payment.extraPrincipal = extra;
        return SubmitMortgagePayment(payment);
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
    EXPECT_EQ(payment.from.description, "First Bank");
    EXPECT_EQ(payment.to.description, "Ann's Loans");
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
    payment.from.id = kLenderId;
    payment.from.description = "Somebody";
    Select(payment, 0, true);
    const core::NotifyToken token([&](std::int16_t kind, auto, auto) { told.push_back(kind); });
    const std::int32_t id = SubmitMortgagePayment(payment);
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
    SubmitMortgagePayment(payment);
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
    const std::int32_t id = SubmitMortgagePayment(payment);

    MortgagePayment stored = mortgages::ReadMortgagePayment(id);
    EXPECT_EQ(stored.PaidAmount(), payment.PaidAmount());
    ASSERT_EQ(stored.charges.size(), 4U);
    Select(stored, 1, true); // the escrow joins it
    Select(stored, 2, true);
    stored.description = "Both months";
    EXPECT_EQ(SubmitMortgagePayment(stored), id);
    EXPECT_THAT(Rows("SELECT Amount, Description FROM Transactions"),
                ElementsAre("1449.101|Both months"));
    EXPECT_THAT(Rows("SELECT Total, Category, Description FROM MortgageLog WHERE Flags = 2"),
                ElementsAre("-1449.101|Mortgage Payment|Both months"));
    EXPECT_THAT(Rows("SELECT CurrentPeriod, NextDue FROM Mortgage"), ElementsAre("2|02/15/2024"));

    stored = mortgages::ReadMortgagePayment(id);
    SelectAll(stored, ChargeChoice::All, false);
    SubmitMortgagePayment(stored);
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
    EXPECT_THROW(SubmitMortgagePayment(payment), platform::Error);
    EXPECT_EQ(Rows("SELECT * FROM Mortgage"), before);
    EXPECT_THAT(Rows("SELECT * FROM Transactions"), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(MortgagePaying, TwelvePaymentsInARowLeaveTwelveMonthsCharged) {
    std::vector<std::string> expected;
    for (int month = 0; month < 12; ++month) {
        const Date due = DateAdd(Interval::Month, month, Date(2024, 1, 15));
        // Paid now on the day, now before the next one falls due.
        RunMortgagesOn(DateAdd(Interval::Day, month % 3 * 9, due));
        PayAll();
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

TEST_F(MortgagePaying, APaidPayoffClosesTheMortgage) {
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
        PayAll();
        EXPECT_THAT(Rows("SELECT Status, PmtStatus, CurrentPV, NextDue FROM Mortgage"),
                    ElementsAre("Closed|n/a|0|"));
        const auto log = Log();
        RunMortgagesOn(DateAdd(Interval::Year, 2, today));
        EXPECT_EQ(Log(), log); // nothing more is charged
        EXPECT_THAT(Rows("SELECT Status FROM Mortgage"), ElementsAre("Closed"));
    }
}

TEST_F(MortgagePaying, APayoffOfARowWithoutListsClosesToo) {
    for (const char* field : {"xPri", "xRate"})
        SetMortgageField(field, "");
    SetMortgageField("CurrentPPmt", "99.55");
    ASSERT_EQ(mortgages::PostPayoff(kMortgageId), mortgages::PayoffResult::Posted);
    PayAll();
    EXPECT_THAT(Rows("SELECT Status, CurrentPV FROM Mortgage"), ElementsAre("Closed|0"));
}

TEST_F(MortgagePaying, APayoffWithoutFiguresRemovesNothing) {
    RunMortgagesOn(Date(2024, 1, 20));
    SetMortgageField("CurrentPV", "NULL");
    EXPECT_EQ(mortgages::PostPayoff(kMortgageId), mortgages::PayoffResult::NotFound);
    EXPECT_EQ(Log().size(), 1U);
}

TEST_F(MortgagePaying, APaymentKeepsTheBalloonAndItsAmount) {
    SetMortgageField("BalloonMtg", "True");
    SetMortgageField("BalloonPer", "24");
    RunMortgagesOn(Date(2024, 1, 20));
    PayAll();
    EXPECT_THAT(Rows("SELECT BalloonMtg, BalloonPer, Format(BalloonPmt, '0.00'), CurrentPeriod "
                     "FROM Mortgage"),
                ElementsAre("True|24|97468.24|2"));
    RunMortgagesOn(Date(2024, 2, 20));
    PayAll(Currency::FromUnits(1000));
    EXPECT_THAT(Rows("SELECT Format(BalloonPmt, '0.00') FROM Mortgage"), ElementsAre("96352.26"));
}

TEST_F(MortgagePaying, IsRefusedWithoutADateOrWithAnExtraThatCannotBe) {
    RunMortgagesOn(Date(2024, 1, 20));
    MortgagePayment payment = mortgages::ProposeMortgagePayment(kMortgageId);
    const auto fault = [&] {
        const auto errors = mortgages::PaymentErrors(payment);
        EXPECT_THROW(SubmitMortgagePayment(payment), platform::Error);
        return errors.empty() ? std::string() : errors.front();
    };
    payment.dateEffective = {};
    EXPECT_EQ(fault(), "A payment date must be entered.");
    payment.dateEffective = Date(2024, 1, 20);
    payment.extraPrincipal = -Currency::FromUnits(1);
    EXPECT_EQ(fault(), "Extra principal cannot be negative.");
    payment.extraPrincipal = Currency::FromUnits(99901);
    EXPECT_EQ(fault(),
              "Extra principal cannot be more than what is then left of the loan, 99,900.45.");
    SetMortgageField("CurrentPeriod", "361");
    EXPECT_EQ(fault(), "Nothing is owed on this mortgage: no extra principal can be paid.");
    EXPECT_THAT(Rows("SELECT * FROM Transactions"), IsEmpty());
}

class ExtraPrincipal : public MortgagePaying {
  protected:
    static std::vector<std::string> Loan() {
        return Rows(
            "SELECT CurrentPeriod, NextDue, Format(CurrentPV, '0.00'), Left(xPri, 11) "
            "FROM Mortgage");
    }
    static std::vector<std::string> ChargesOf(int period) {
        return Rows(
            "SELECT Category, PayDown, Total, IdTransaction <> 0 FROM MortgageLog "
            "WHERE Period = " +
            std::to_string(period) + " ORDER BY IdMortgageLog");
    }
};

TEST_F(ExtraPrincipal, PaidWithABasePaymentLowersTheLoanFromItsPeriodOn) {
    RunMortgagesOn(Date(2024, 2, 20));
    const std::int32_t id = PayAll(Currency::FromUnits(1000));
    EXPECT_THAT(Rows("SELECT Amount FROM Transactions"), ElementsAre("2199.101"));
    EXPECT_THAT(Rows("SELECT Total FROM MortgageLog WHERE Flags = 2"), ElementsAre("-2199.101"));
    EXPECT_THAT(ChargesOf(2),
                ElementsAre("Mortgage Payment|0|599.5505|True", "Extra Principal|1000|1000|True"));
    EXPECT_THAT(Loan(), ElementsAre("3|03/15/2024|98800.40|0,1000,0,0,"));
    EXPECT_EQ(mortgages::ReadMortgagePayment(id).PaidAmount(), Currency::FromScaled(21991010));
    EXPECT_THAT(Rows("SELECT Sum(Total) FROM MortgageLog"), ElementsAre("0"));
}

TEST_F(ExtraPrincipal, PaidAheadIsNotAskedForAgain) {
    SetMortgageField("xPri", "0,100");
    SetMortgageField("xRate", "");
    RunMortgagesOn(Date(2024, 1, 20));
    PayAll();
    PayAll(Currency::FromUnits(300)); // nothing is open: the payment is only extra principal
    PayAll(Currency::FromUnits(200));
    EXPECT_THAT(Loan(), ElementsAre("2|02/15/2024|99900.45|0,600,0,0,0"));
    RunMortgagesOn(Date(2024, 2, 20));
    EXPECT_THAT(ChargesOf(2),
                ElementsAre("Extra Principal|300|300|True", "Extra Principal|200|200|True",
                            "Mortgage Payment|100|699.5505|False"));
    PayAll();
    EXPECT_THAT(Loan(), ElementsAre("3|03/15/2024|99200.40|0,600,0,0,0"));
}

TEST_F(ExtraPrincipal, ComesOnTopOfWhatIsPaidEveryMonth) {
    SetMortgageField("xPriAll", "50");
    RunMortgagesOn(Date(2024, 1, 20));
    PayAll(Currency::FromUnits(1000));
    EXPECT_THAT(Loan(), ElementsAre("2|02/15/2024|98850.45|1050,0,0,0,"));
    PayAll(Currency::FromUnits(10));
    RunMortgagesOn(Date(2024, 2, 20));
    PayAll();
    EXPECT_THAT(Rows("SELECT Left(xPri, 8) FROM Mortgage"), ElementsAre("1050,60,"));
}

TEST_F(ExtraPrincipal, OfAllThatIsLeftEndsTheLoan) {
    RunMortgagesOn(Date(2024, 1, 20));
    PayAll(Currency::FromScaled(999004495));
    EXPECT_THAT(Rows("SELECT Status, CurrentPV, NextDue FROM Mortgage"), ElementsAre("Closed|0|"));
}

TEST_F(ExtraPrincipal, IsLeftOutOfAPayoff) {
    RunMortgagesOn(Date(2024, 1, 20));
    PayAll();
    PayAll(Currency::FromUnits(900));
    ASSERT_EQ(mortgages::PostPayoff(kMortgageId), mortgages::PayoffResult::Posted);
    EXPECT_THAT(Rows("SELECT Principal + PayDown FROM MortgageLog WHERE IdTransaction = 0"),
                ElementsAre("99000.4495"));
    PayAll();
    EXPECT_THAT(Rows("SELECT Status, CurrentPV, NextDue FROM Mortgage"), ElementsAre("Closed|0|"));
}

TEST_F(MortgagePaying, IsWholeOrNotAtAllWithTheRefreshOfTheMortgage) {
    SetMortgageField("EscrowAmount", "250");
    RunMortgagesOn(Date(2024, 2, 20));
    const Crashes crashes = CrashAtEveryStatement([] { PayAll(Currency::FromUnits(100)); });
    EXPECT_THAT(crashes.faults, IsEmpty());
    EXPECT_GE(crashes.statements, 12);
    EXPECT_EQ(crashes.asBefore + crashes.asAfter, crashes.statements);
    EXPECT_THAT(Rows("SELECT CurrentPeriod, NextDue FROM Mortgage"), ElementsAre("3|03/15/2024"));
}

TEST_F(MortgagePaying, OfADeletedMortgageKeepsItsBuildingWhenItIsEdited) {
    RunMortgagesOn(Date(2024, 1, 20));
    const std::int32_t id = PayAll();
    core::App().Connection.Execute("DELETE * FROM Mortgage");
    MortgagePayment payment = mortgages::ReadMortgagePayment(id);
    payment.checkNumber = "5";
    SubmitMortgagePayment(payment);
    EXPECT_THAT(Rows("SELECT IdBuilding, IdMortgage, CheckNum, Amount FROM Transactions"),
                ElementsAre("202|201|5|599.5505"));
}

} // namespace

} // namespace tests
