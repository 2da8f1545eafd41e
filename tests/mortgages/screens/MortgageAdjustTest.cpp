#include "mortgages/MortgagePayment.h"
#include "mortgages/screens/MortgageForm.h"
#include "mortgages/screens/frmMortgageAdjust.h"

namespace tests {

namespace {

using mortgages::screens::frmMortgageAdjust;

TEST_F(MortgageScreen, TakesALendersRateAndBalanceOver) {
    EXPECT_FALSE(Open()->findChild<QAction*>(QStringLiteral("mnuChangeRate"))->isEnabled());
    Run("UPDATE Mortgage SET ARM = True");
    const auto form = Open();
    Trigger(*form, "mnuChangeRate");
    auto adjust = Opened<frmMortgageAdjust>();
    ASSERT_TRUE(adjust);
    EXPECT_EQ(Text(*adjust, "txtPer_Int"), "1");
    Type(Find<QLineEdit>(*adjust, "txtPer_Int"), "0");
    ClickAction(*adjust, "CHANGEI");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\nPeriod number cannot be "
                            "zero (or less than).\n"});
    Type(Find<QLineEdit>(*adjust, "txtPer_Int"), "13");
    Type(Find<QLineEdit>(*adjust, "txtI_Int"), "7.5");
    ClickAction(*adjust, "CHANGEI");
    EXPECT_EQ(Cell(*form, 12, 2), "7.50");

    Trigger(*form, "mnuChangeBalance");
    adjust = Opened<frmMortgageAdjust>();
    Type(Find<QLineEdit>(*adjust, "txtBalance"), "120000");
    Type(Find<QLineEdit>(*adjust, "dpNextDue"), "6/1/2024");
    ClickAction(*adjust, "PROCEEDBAL");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\nNew balance must be "
                            "lower than previous balance.\n"});
    Type(Find<QLineEdit>(*adjust, "txtBalance"), "100000");
    ClickAction(*adjust, "PROCEEDBAL");
    EXPECT_EQ(Cell(*form, 4, 5), "100,000.00");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Loan("ARM"), "True");
    EXPECT_NE(Loan("xPri").find("19396.69"), std::string::npos) << Loan("xPri").substr(0, 60);
}

TEST_F(MortgageScreen, TheWorstCaseIsOnlyShown) {
    Run("UPDATE Mortgage SET ARM = True, ARMLockedPer = 12, ARMAdjPer = 12, ARMPerCap = 0.02, "
        "ARMLifeCap = 0.06");
    const auto form = Open();
    Find<QLineEdit>(*form, "txtDescription").setText(QStringLiteral("Any"));
    ClickAction(*form, "CLOSE"); // the lists have their entries from now on
    const std::string before = Loan("xRate");
    const auto again = Open();
    EXPECT_FALSE(Find<QWidget>(*again, "fraInstead").isVisibleTo(again));
    ClickOn(Find<QPushButton>(*again, "cmdMaxRates"));
    EXPECT_EQ(Cell(*again, 36, 2), "12.00");
    EXPECT_TRUE(Find<QWidget>(*again, "fraInstead").isVisible());
    EXPECT_EQ(Text(*again, "lblCaption"),
              "Worst case: the highest rates that the terms allow. The "
              "mortgage itself is not changed.");
    EXPECT_FALSE(again->Dirty());
    ClickOn(Find<QPushButton>(*again, "cmdOwnSchedule"));
    EXPECT_EQ(Cell(*again, 36, 2), "6.00");
    ClickOn(Find<QPushButton>(*again, "cmdMaxRates"));
    Find<QLineEdit>(*again, "txtDescription").setText(QStringLiteral("Seen"));
    ClickAction(*again, "CLOSE");
    EXPECT_EQ(Loan("xRate"), before);
    EXPECT_EQ(Loan("Description"), "Seen");
}

TEST_F(MortgageScreen, AnAdjustmentThatIsNotSavedYetSurvivesAPayment) {
    const auto form = Open();
    Trigger(*form, "mnuChangeTerms");
    auto adjust = Opened<frmMortgageAdjust>();
    ASSERT_TRUE(adjust);
    Type(Find<QLineEdit>(*adjust, "txtPer_XPri"), "6");
    Type(Find<QLineEdit>(*adjust, "txtXPri"), "75");
    ClickAction(*adjust, "CHANGETERMS");
    Find<QCheckBox>(*form, "chkPPM").click();
    EXPECT_EQ(Cell(*form, 4, 4), "0.00");
    EXPECT_EQ(Cell(*form, 5, 4), "75.00");

    mortgages::MortgagePayment payment = mortgages::ProposeMortgagePayment(kLoan);
    mortgages::Select(payment, 0, true);
    mortgages::SubmitMortgagePayment(payment);
    EXPECT_EQ(Text(*form, "txtNextDue"), "02/01/2024");
    // One more, which another program takes: this window doesn't hear of it.
    Run("UPDATE Mortgage SET CurrentPeriod = 3, NextDue = '03/01/2024'");
    EXPECT_EQ(Cell(*form, 5, 4), "75.00");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Loan("NextDue"), "03/01/2024");
    EXPECT_EQ(Loan("CurrentPeriod"), "3");
    EXPECT_EQ(Loan("PPM"), "True");
    EXPECT_EQ(Loan("Left(xPri, 17)"), "0,0,0,0,0,75,75,7");
}

TEST_F(MortgageScreen, TakesAMistypedBalanceBack) {
    const auto form = Open();
    const auto balance = [&](const char* amount) {
        Trigger(*form, "mnuChangeBalance");
        const auto adjust = Opened<frmMortgageAdjust>();
        Type(Find<QLineEdit>(*adjust, "txtBalance"), amount);
        Type(Find<QLineEdit>(*adjust, "dpNextDue"), "6/1/2024");
        ClickAction(*adjust, "PROCEEDBAL");
        support::SettleEvents();
    };
    EXPECT_FALSE(form->findChild<QAction*>(QStringLiteral("mnuTakeBack"))->isEnabled());
    balance("1000");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(ScheduleRows(*form), 7);
    Trigger(*form, "mnuTakeBack");
    const auto back = Opened<frmMortgageAdjust>();
    ASSERT_TRUE(back);
    EXPECT_EQ(Text(*back, "cboTakeBack"), "Payment 5, due 05/01/2024: 118,396.69");
    ClickAction(*back, "TAKEBACK");
    EXPECT_EQ(ScheduleRows(*form), 360);
    balance("100000");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Loan("Left(xPri, 15)"), "0,0,0,0,19396.6");
}

} // namespace

} // namespace tests
