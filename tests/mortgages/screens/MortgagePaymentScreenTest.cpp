#include <QFocusEvent>

#include "core/EditRecord.h"
#include "core/binding/DateEdit.h"
#include "mortgages/screens/MortgageScreens.h"
#include "mortgages/screens/frmMortgage.h"
#include "mortgages/screens/frmMortgageAdjust.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "mortgages/screens/frmMortgageWizard.h"
#include "mortgages/screens/frmMtgLog.h"

namespace tests {

namespace {

using mortgages::screens::frmMortgage;
using mortgages::screens::frmMortgageAdjust;
using mortgages::screens::frmMortgagePayment;
using mortgages::screens::frmMortgageWizard;
using mortgages::screens::frmMtgLog;

class MortgagePaymentScreen : public MortgageScreenTest {
  protected:
    static QPointer<frmMortgagePayment> Open(std::int32_t id = 0) {
        return support::Show<frmMortgagePayment>(id, kLoan);
    }
};

TEST_F(MortgagePaymentScreen, TicksBasePaymentsInTheirOrder) {
    const auto form = Open();
    const Said open = {"03/01/2024|3|Mortgage Payment|Mortgage P & I Payment Due|719.46",
                       "03/01/2024|3|Mortgage Escrow|Mortgage Escrow Payment|250.00",
                       "03/16/2024|3|Late Payment|Late Payment|35.00",
                       "04/01/2024|4|Mortgage Payment|Mortgage P & I Payment Due|719.46"};
    const Said lines = ListRows(*form, "lvwCharges");
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(Said(lines.begin(), lines.begin() + 4), open);
    EXPECT_EQ(Text(*form, "txtTotalDue"), ".00");
    EXPECT_EQ(Text(*form, "cboFrom"), "River Bank");
    EXPECT_EQ(Text(*form, "cboTo"), "Ann's Loans");

    Tick(*form, 3, true);
    EXPECT_EQ(Heard(), Said{"Note: Previous base payments must be selected"});
    EXPECT_EQ(ListRows(*form, "lvwCharges"), lines) << "the tick doesn't stay";
    EXPECT_FALSE(form->Dirty());
    Tick(*form, 0, true);
    Tick(*form, 3, true);
    EXPECT_EQ(Text(*form, "txtTotalDue"), "1438.92");
    Tick(*form, 0, false);
    EXPECT_EQ(Heard(), Said{"Note: Following base payments must not be selected"});
    EXPECT_EQ(ListRows(*form, "lvwCharges").front().substr(0, 2), "x ");
    Trigger(*form, "mnuUncheckAll");
    EXPECT_EQ(Text(*form, "txtTotalDue"), ".00");
    Trigger(*form, "mnuCheckPI");
    EXPECT_EQ(Text(*form, "txtTotalDue"), "2158.38");
}

TEST_F(MortgagePaymentScreen, SubmitsAndShowsTheStoredPaymentAgain) {
    const auto form = Open();
    Tick(*form, 0, true);
    Tick(*form, 1, true);
    Type(Find<QLineEdit>(*form, "txtCheckNumber"), "0042");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_FALSE(form && form->isVisible());
    const std::string id = Ask("SELECT IdTransaction FROM Transactions WHERE CheckNum = '0042'");
    EXPECT_EQ(Loan("NextDue"), "02/01/2024");

    core::EditRecord(core::kTransaction, std::stoi(id));
    const auto stored = Opened<frmMortgagePayment>();
    ASSERT_TRUE(stored);
    EXPECT_EQ(Text(*stored, "txtTotalDue"), "969.46");
    EXPECT_EQ(ListRows(*stored, "lvwCharges").size(), 9U) << "its own row isn't listed";
    ClickAction(*stored, "SUBMIT");
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "969.4606");
    EXPECT_EQ(Ask("SELECT Count(*) FROM MortgageLog WHERE Flags = 2"), "1");
    EXPECT_EQ(Loan("CurrentPeriod"), "2");
}

TEST_F(MortgagePaymentScreen, IsDrivenByKeys) {
    const auto form = Open();
    auto& list = Find<QTreeWidget>(*form, "lvwCharges");
    list.setFocus();
    list.setCurrentItem(list.topLevelItem(0), 3); // whatever column the caret is in
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(Text(*form, "txtTotalDue"), "719.46");
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(Text(*form, "txtTotalDue"), ".00");
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_F2);
    auto charge = Opened<frmMtgLog>();
    ASSERT_TRUE(charge);
    EXPECT_EQ(Text(*charge, "txtTotal"), "719.46");
    charge->CloseUnasked();
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_FALSE(form && form->isVisible()) << "Enter submits";
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "719.4606");
}

TEST_F(MortgagePaymentScreen, AlwaysHoldsADate) {
    const auto form = Open();
    auto& date = Find<core::binding::DateEdit>(*form, "dpEffectiveDate");
    date.clear();
    QFocusEvent left(QEvent::FocusOut);
    QApplication::sendEvent(&date, &left);
    EXPECT_EQ(date.text(), QStringLiteral("05/17/2024"));
    Type(date, "3/7/24");
    date.clear();
    Tick(*form, 0, true);
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\nA payment date must be "
                            "entered.\n"});
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
}

TEST_F(MortgagePaymentScreen, DeletesTheTickedChargesAndNamesThem) {
    const auto form = Open();
    auto& list = Find<QTreeWidget>(*form, "lvwCharges");
    list.setCurrentItem(list.topLevelItem(0));
    Trigger(*form, "mnuChargeDelete");
    EXPECT_EQ(Heard(), Said{"Note: Tick the charges that are to be deleted."});
    Tick(*form, 1, true);
    Tick(*form, 2, true);
    Answer({false, true});
    for (const int left : {9, 7}) {
        QTest::keyClick(&list, Qt::Key_Delete);
        EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete all selected charges?\n\n"
                                "03/01/2024  Mortgage Escrow Payment  250.00\n"
                                "03/16/2024  Late Payment  35.00"});
        EXPECT_EQ(ListRows(*form, "lvwCharges").size(), static_cast<std::size_t>(left));
    }
    EXPECT_EQ(ListRows(*form, "lvwCharges").front(),
              "03/01/2024|3|Mortgage Payment|Mortgage P & I Payment Due|719.46");
    EXPECT_EQ(Text(*form, "txtTotalDue"), ".00");
}

TEST_F(MortgagePaymentScreen, BooksExtraPrincipal) {
    const auto form = Open();
    Tick(*form, 0, true);
    Type(Find<QLineEdit>(*form, "txtExtraPrincipal"), "200000");
    EXPECT_EQ(Text(*form, "txtTotalDue"), "200719.46");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(),
              Said{"Whoa!: The following errors have occured:\n\nExtra principal cannot be "
                   "more than what is then left of the loan, 119,639.82.\n"});
    Type(Find<QLineEdit>(*form, "txtExtraPrincipal"), "1500");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "2219.4606");
    EXPECT_EQ(Ask("SELECT Category + '|' + Description FROM MortgageLog WHERE PayDown = 1500 AND "
                  "Period = 3 AND Flags = 0"),
              "Extra Principal|Extra Principal Payment");
    core::EditRecord(core::kTransaction, std::stoi(Ask("SELECT IdTransaction FROM Transactions")));
    const auto stored = Opened<frmMortgagePayment>();
    ASSERT_TRUE(stored);
    EXPECT_EQ(Text(*stored, "txtTotalDue"), "2219.46");
    EXPECT_FALSE(Find<QWidget>(*stored, "txtExtraPrincipal").isEnabled());

    auto* const row = new frmMtgLog;
    row->Setup(std::stoi(Ask("SELECT IdMortgageLog FROM MortgageLog WHERE PayDown = 1500")), kLoan);
    for (const char* locked : {"cboCategory", "txtPeriod", "txtPayDown"})
        EXPECT_FALSE(Find<QWidget>(*row, locked).isEnabled()) << locked;
    row->CloseUnasked();
}

TEST_F(MortgagePaymentScreen, SaysWhatAnotherProgramDidAndPaysTheRestAfterwards) {
    const auto form = Open();
    Tick(*form, 0, true);
    Tick(*form, 1, true);
    Type(Find<QLineEdit>(*form, "txtCheckNumber"), "0042");
    Run("UPDATE MortgageLog SET IdTransaction = 77 WHERE Flags = 1 AND Period = 3");
    ClickAction(*form, "SUBMIT");
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_NE(heard[0].find("The charge \"Mortgage P & I Payment Due\" of 03/01/2024 has already "
                            "been paid. Nothing was paid."),
              std::string::npos)
        << heard[0];
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
    EXPECT_EQ(Loan("CurrentPeriod"), "1");
    const Said left = ListRows(*form, "lvwCharges");
    ASSERT_EQ(left.size(), 8U) << "the charge that the other program paid isn't listed";
    EXPECT_EQ(left[0], "x 03/01/2024|3|Mortgage Escrow|Mortgage Escrow Payment|250.00");
    EXPECT_EQ(Text(*form, "txtTotalDue"), "250.00");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT CheckNum & '|' & Amount FROM Transactions"), "0042|250");
}

TEST_F(MortgagePaymentScreen, AChargeKeepsABasePaymentsSplit) {
    const std::string base =
        Ask("SELECT IdMortgageLog FROM MortgageLog WHERE Flags = 1 AND Period = 3");
    auto* const form = new frmMtgLog;
    form->Setup(std::stoi(base), kLoan);
    EXPECT_EQ(form->windowTitle(), QStringLiteral(" Editing Mortgage Charge"));
    for (const char* locked : {"cboCategory", "txtPrincipal", "txtPayDown", "txtInterest"})
        EXPECT_FALSE(Find<QWidget>(*form, locked).isEnabled()) << locked;
    Type(Find<QLineEdit>(*form, "txtOther"), "12.5");
    EXPECT_EQ(Text(*form, "txtTotal"), "731.96");
    ClickAction(*form, "OK");
    EXPECT_EQ(Ask("SELECT Total FROM MortgageLog WHERE IdMortgageLog = " + base), "731.9606");

    auto* const fresh = new frmMtgLog;
    fresh->Setup(0, kLoan);
    EXPECT_EQ(Text(*fresh, "cboCategory"), "Misc Charge");
    EXPECT_EQ(Find<QComboBox>(*fresh, "cboCategory").count(), 7);
    Type(Find<QLineEdit>(*fresh, "txtInterest"), "3");
    Type(Find<QLineEdit>(*fresh, "txtDescription"), "Bank's slip");
    ClickAction(*fresh, "OK");
    EXPECT_EQ(Ask("SELECT Category + '|' + DatePosted FROM MortgageLog WHERE Description = "
                  "'Bank''s slip' AND Flags = 0 AND Total = 3"),
              "Misc Charge|05/17/2024");

    auto* const missing = new frmMtgLog;
    missing->Setup(99999, kLoan);
    ASSERT_EQ(Heard().size(), 1U);
    missing->CloseUnasked();
}

TEST_F(MortgagePaymentScreen, TheWizardAddsALoanAndOpensIt) {
    QPointer<frmMortgageWizard> form(new frmMortgageWizard);
    form->Setup();
    EXPECT_EQ(Text(*form, "txtOrigPV"), "100000.00");
    EXPECT_EQ(Text(*form, "txtOrigPmt"), "733.76");
    form->GoTo(2);
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\nA valid company name has "
                            "not been entered.\n"});
    Find<QRadioButton>(*form, "optAccount1").click();
    Choose(*form, "cboAccount", "Ann's Loans");
    form->GoTo(3);
    Type(Find<QLineEdit>(*form, "dpFirstDue"), "1/1/2023");
    Type(Find<QLineEdit>(*form, "txtLoanNumber"), "L-1");
    form->GoTo(4);
    Type(Find<QLineEdit>(*form, "dpNextDue"), "6/1/2024");
    Type(Find<QLineEdit>(*form, "txtCurrPV"), "98500");
    EXPECT_EQ(LookFaults(*form, "frmMortgageWizard-today"), Said{});
    form->GoTo(5);
    EXPECT_EQ(Heard(), Said{});
    ClickAction(*form, "FINISH");
    const auto opened = Opened<frmMortgage>();
    ASSERT_TRUE(opened);
    EXPECT_EQ(Text(*opened, "txtDescription"), "Ann's Loans L-1");
    EXPECT_EQ(Text(*opened, "txtNextDue"), "06/01/2024");
    EXPECT_EQ(Text(*opened, "txtBalance"), "98,500.00");
}

TEST_F(MortgagePaymentScreen, AdjustmentsLookRight) {
    mortgages::clsMortgage loan;
    loan.SetARM(true);
    loan.SetXPri(3, 12345.67);
    loan.ReCalc();
    using Adjust = frmMortgageAdjust;
    const std::pair<const char*, void (Adjust::*)(const mortgages::clsMortgage&)> kModes[] = {
        {"rate", &Adjust::SetupInt},
        {"balance", &Adjust::SetupBalance},
        {"terms", &Adjust::SetupTerms},
        {"back", &Adjust::SetupTakeBack}};
    for (const auto& [name, setup] : kModes) {
        auto* const adjust = new Adjust;
        (adjust->*setup)(loan);
        EXPECT_EQ(LookFaults(*adjust, std::string("frmMortgageAdjust-") + name), Said{}) << name;
    }
}

} // namespace

} // namespace tests
