#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "mortgages/MortgageAdjust.h"
#include "mortgages/MortgageFixture.h"
#include "mortgages/MortgageWizard.h"
#include "mortgages/clsMortgage.h"
#include "platform/system/Clock.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using mortgages::clsMortgage;
using mortgages::WizardEntries;
using mortgages::WizardStep;
using platform::Currency;
using platform::Date;
using testing::ElementsAre;
using testing::IsEmpty;

WizardEntries Entries() {
    WizardEntries entries;
    entries.accountName = " Ann's Homes ";
    entries.origPV = Currency::FromUnits(100'000);
    entries.origTerm = 360;
    entries.origRate = 8;
    entries.origPmt = Currency::FromScaled(7337600);
    entries.firstDue = Date(2023, 1, 1);
    entries.loanNumber = "L-7";
    entries.nextDue = Date(2024, 2, 1);
    entries.currentPV = Currency::FromUnits(98'000);
    entries.currentRate = 8;
    return entries;
}

class Wizard : public testing::Test {
  protected:
    support::TemporaryFolder folder_;
    BooksWithOneMortgage books_{folder_.Path() / "db"};
};

TEST_F(Wizard, TellsTheFirstFaultOfEachStep) {
    const struct {
        WizardStep step;
        void (*spoil)(WizardEntries&);
        const char* fault;
    } kCases[] = {
        {WizardStep::Lender, [](auto& e) { e.accountName = "  "; },
         "A valid company name has not been entered."},
        {WizardStep::Lender,
         [](auto& e) {
             e.accountName = "";
             e.newAccount = false;
         },
         ""},
        {WizardStep::Terms,
         [](auto& e) {
             e.origPV = {};
             e.origTerm = 0;
         },
         "Invalid loan amount entered."},
        {WizardStep::Terms, [](auto& e) { e.origTerm = 0; }, "Invalid loan term entered."},
        {WizardStep::Details,
         [](auto& e) {
             e.firstDue = {};
             e.loanNumber = "";
         },
         "A valid start date has not been selected."},
        {WizardStep::Details, [](auto& e) { e.loanNumber = ""; },
         "A valid loan number has not been entered."},
        {WizardStep::Current,
         [](auto& e) {
             e.nextDue = {};
             e.currentPV = {};
         },
         "A valid payment date has not been selected."},
        {WizardStep::Current, [](auto& e) { e.currentPV = {}; }, "Invalid loan amount entered."},
    };
    for (const auto& fault : kCases) {
        WizardEntries entries = Entries();
        EXPECT_EQ(StepFault(fault.step, entries), "");
        fault.spoil(entries);
        EXPECT_EQ(StepFault(fault.step, entries), fault.fault);
    }
}

TEST_F(Wizard, AddsARunningLoanWithItsLender) {
    platform::SetToday(Date(2024, 1, 20));
    const std::int32_t id = FinishWizard(Entries());
    const std::string where = " FROM Mortgage WHERE IdMortgage = " + std::to_string(id);
    EXPECT_THAT(Rows("SELECT ShowAs, Company, AccountType, Balance, AccountNumber, Notes "
                     "FROM Account WHERE AccountType = 'Mortgagee' AND IdAccount > 1000 "
                     "OR IdAccount = 1000"),
                ElementsAre("Ann's Homes|Ann's Homes|Mortgagee|0|L-7|Added by Mortgage Wizard"));
    EXPECT_THAT(Rows("SELECT Description, AccountNumber, IdMortgagee, CurrentPeriod, NextDue, "
                     "DateUpdated, Status, PmtStatus, PMI, LastEscrowReview, Notes" +
                     where),
                ElementsAre("Ann's Homes L-7|L-7|1000|14|02/01/2024|01/20/2024|Current|OK|0||"
                            "Added by Mortgage Wizard"));
    clsMortgage loan;
    ASSERT_TRUE(loan.LoadMtg(id));
    loan.ReCalc();
    EXPECT_NEAR(loan.GetPV(14), 98'000, 1e-6);
    EXPECT_GT(loan.GetXPRI(13), 0);
    for (const int period : {1, 12, 14, 360})
        EXPECT_EQ(loan.GetXPRI(period), 0) << period;
    EXPECT_THAT(Rows("SELECT CurrentPPmt, CurrentIPmt" + where),
                ElementsAre(platform::Value(loan.GetPPMT(14).ToDouble()).AsText() + "|" +
                            platform::Value(loan.GetIPMT(14).ToDouble()).AsText()));

    RunMortgagesOn(Date(2024, 1, 31));
    EXPECT_THAT(Rows("SELECT * FROM MortgageLog WHERE IdMortgage = " + std::to_string(id)),
                IsEmpty());
}

TEST_F(Wizard, CorrectsNeitherTheFirstPeriodNorUpwards) {
    WizardEntries first = Entries();
    first.adjustable = true;
    first.nextDue = first.firstDue;
    first.currentRate = 9;
    first.currentPV = Currency::FromUnits(90'000);
    clsMortgage loan;
    ASSERT_TRUE(loan.LoadMtg(FinishWizard(first)));
    loan.ReCalc();
    EXPECT_EQ(loan.GetPV(1), 100'000);
    EXPECT_DOUBLE_EQ(loan.GetRate(2), 8);
    EXPECT_EQ(loan.CurrentPeriod(), 1);

    WizardEntries higher = Entries();
    higher.newAccount = false;
    higher.idAccount = kLenderId;
    higher.lenderName = "Ann's Loans";
    higher.adjustable = true;
    higher.currentPV = Currency::FromUnits(99'999);
    higher.currentRate = 9;
    ASSERT_TRUE(loan.LoadMtg(FinishWizard(higher)));
    loan.ReCalc();
    EXPECT_LT(loan.GetPV(14), 99'500);
    EXPECT_DOUBLE_EQ(loan.GetRate(13), 8);
    EXPECT_DOUBLE_EQ(loan.GetRate(14), 9);
    EXPECT_EQ(loan.Description(), "Ann's Loans L-7");
}

class MortgageAdjust : public testing::Test {
  protected:
    /// 100,000.00 at 6 percent over 360 months from 01/15/2024, adjustable.
    MortgageAdjust() {
        double periods = 360;
        double payment = 0;
        loan_.CreateMtg("01/15/2024", 100'000, periods, 0.06, payment, false, true);
    }

    clsMortgage loan_;
};

TEST_F(MortgageAdjust, SaysWhyItWouldBeRefusedOrChangeNothing) {
    using mortgages::AdjustErrors;
    using mortgages::ExtraFrom;
    using mortgages::LenderBalance;
    using mortgages::RateFrom;
    EXPECT_THAT(AdjustErrors(loan_, RateFrom{2, 0}), IsEmpty());
    EXPECT_THAT(AdjustErrors(loan_, RateFrom{360, 0.3}), IsEmpty());
    EXPECT_THAT(AdjustErrors(loan_, RateFrom{0, -0.005}),
                ElementsAre("Interest rate cannot be a negative value.",
                            "Period number cannot be zero (or less than)."));
    EXPECT_THAT(AdjustErrors(loan_, RateFrom{1, 0.05}),
                ElementsAre("The first payment always has the first rate: enter a period from 2 "
                            "on."));
    EXPECT_THAT(AdjustErrors(loan_, RateFrom{361, 0.31}),
                ElementsAre("Interest rate cannot be above 30 percent.",
                            "The loan has only 360 payments."));

    const auto balance = [&](Date day, std::int64_t amount) {
        return AdjustErrors(loan_, LenderBalance{day, Currency::FromUnits(amount), 0.06});
    };
    EXPECT_THAT(balance(Date(2024, 2, 1), 99'900), IsEmpty());
    EXPECT_THAT(balance(Date(2024, 2, 1), 99'901),
                ElementsAre("New balance must be lower than previous balance."));
    EXPECT_EQ(balance(Date(2024, 1, 1), 5).size(), 1U);
    EXPECT_THAT(balance(Date(2023, 12, 31), 5),
                ElementsAre("No payment of the loan is due in the month of this date."));
    EXPECT_THAT(balance(Date(2053, 12, 15), 5),
                ElementsAre("The last payment is due on this date: use Pay Off instead."));
    EXPECT_THAT(balance(Date(2053, 11, 15), 5), IsEmpty());
    EXPECT_EQ(balance(Date(2054, 1, 15), 5).size(), 1U);
    EXPECT_THAT(AdjustErrors(loan_, ExtraFrom{1, Currency()}), IsEmpty());
    EXPECT_EQ(AdjustErrors(loan_, ExtraFrom{400, -Currency::FromUnits(1)}).size(), 2U);
}

TEST_F(MortgageAdjust, ChangesWhatIsPaidEveryMonthFromAPeriodOnAndKeepsWhatWasPaid) {
    loan_.SetXPri(0, 100);
    loan_.SetXPri(2, 900);
    loan_.ReCalc();
    const auto before = loan_.Schedule();
    mortgages::Adjust(loan_, mortgages::ExtraFrom{4, Currency::FromUnits(250)});
    const auto extras = [&] {
        std::vector<double> list;
        for (std::size_t i = 0; i < 6; ++i)
            list.push_back(loan_.Schedule()[i].XPri);
        return list;
    };
    EXPECT_THAT(extras(), ElementsAre(100, 900, 100, 250, 250, 250));
    EXPECT_EQ(loan_.Schedule()[3].BeginBal, before[3].BeginBal);
    mortgages::Adjust(loan_, mortgages::ExtraFrom{5, Currency()});
    EXPECT_THAT(extras(), ElementsAre(100, 900, 100, 250, 0, 0));
    mortgages::Adjust(loan_, mortgages::WithoutExtra{2});
    EXPECT_THAT(extras(), ElementsAre(100, 0, 100, 250, 0, 0));
    std::vector<int> periods;
    for (const mortgages::ExtraEntry& entry : mortgages::ExtraEntries(loan_))
        periods.push_back(entry.period);
    EXPECT_THAT(periods, ElementsAre(1, 3, 4));
    mortgages::Adjust(loan_, mortgages::MovePeriod{7});
    EXPECT_EQ(loan_.CurrentPeriod(), 8);
    mortgages::Adjust(loan_, mortgages::MovePeriod{-100});
    EXPECT_EQ(loan_.CurrentPeriod(), 1);
}

} // namespace

} // namespace tests
