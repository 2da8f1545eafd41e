// The commands of the mortgage's ledger and menus, second clicks, and saves that fail.

#include <functional>

#include "core/Globals.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/screens/MortgageForm.h"
#include "mortgages/screens/frmMortgagePayment.h"
#include "mortgages/screens/frmMortgageWizard.h"
#include "mortgages/screens/frmMtgLog.h"

namespace tests {

namespace {

using mortgages::screens::frmMortgagePayment;
using mortgages::screens::frmMortgageWizard;
using mortgages::screens::frmMtgLog;

class MortgageCommands : public MortgageScreen {
  protected:
    static void PayAll() {
        mortgages::MortgagePayment payment = mortgages::ProposeMortgagePayment(kLoan);
        SelectAll(payment, mortgages::ChargeChoice::All, true);
        SubmitMortgagePayment(payment);
    }
    static std::string Count(std::string_view table) {
        return Ask("SELECT Count(*) FROM " + std::string(table));
    }
    /// Saves while writes to the table fail, and then when they succeed. The screen must say why
    /// it failed, stay open as it is, and save all of it the second time.
    void ExpectKept(const QWidget& form, const char* save, const std::string& writes) {
        core::App().Connection.RunScript("CREATE TRIGGER full BEFORE " + writes +
                                         " BEGIN SELECT RAISE(ABORT, 'no room'); END;");
        ClickAction(form, save);
        const Said heard = Heard();
        ASSERT_EQ(heard.size(), 1U);
        EXPECT_NE(heard.front().find("no room"), std::string::npos) << heard.front();
        EXPECT_TRUE(form.isVisible());
        core::App().Connection.RunScript("DROP TRIGGER full;");
        ClickAction(form, save);
        EXPECT_EQ(Heard(), Said{});
    }
};

TEST_F(MortgageCommands, AddAndEditChargesAndOpenThePaymentOfASettledOne) {
    const auto form = Open();
    GoTo(*form, "tabPayments");
    auto& list = Find<QTreeWidget>(*form, "lvw");
    ClickOn(Find<QPushButton>(*form, "cmdEditAdd"));
    auto charge = Opened<frmMtgLog>();
    ASSERT_TRUE(charge);
    Type(Find<QLineEdit>(*charge, "txtOther"), "12.5");
    Type(Find<QLineEdit>(*charge, "txtDescription"), "Survey");
    ClickAction(*charge, "OK");
    EXPECT_EQ(ListRows(*form, "lvw").front(),
              "05/17/2024|Misc Charge|Survey|0.00|0.00|0.00|12.50|12.50");
    list.setCurrentItem(list.topLevelItem(0));
    ClickOn(Find<QPushButton>(*form, "cmdEditEdit"));
    charge = Opened<frmMtgLog>();
    ASSERT_TRUE(charge);
    EXPECT_EQ(Text(*charge, "txtDescription"), "Survey");
    Type(Find<QLineEdit>(*charge, "txtOther"), "99");
    Answer({true});
    ClickAction(*charge, "CANCEL");
    EXPECT_EQ(Heard(), Said{"Whoa!: Close without saving changes?"});
    EXPECT_EQ(Ask("SELECT Total FROM MortgageLog WHERE Description = 'Survey'"), "12.5");
    Trigger(*form, "mnuSelectAll");
    EXPECT_EQ(list.selectedItems().size(), 10);

    PayAll();
    Find<QTabBar>(*form, "tab").setCurrentIndex(1);
    list.setCurrentItem(list.topLevelItem(1));
    ClickOn(Find<QPushButton>(*form, "cmdEditEdit"));
    const auto payment = Opened<frmMortgagePayment>();
    ASSERT_TRUE(payment);
    EXPECT_EQ(payment->windowTitle().isEmpty(), false);
    EXPECT_EQ(std::to_string(payment->OpenRecordId()), Ask("SELECT IdTransaction FROM "
                                                           "Transactions"));
}

TEST_F(MortgageCommands, RollForwardAndPayOffDoNothingUnlessAgreed) {
    PayAll();
    Run("UPDATE Mortgage SET CurrentPeriod = 6, NextDue = '06/01/2024'");
    const auto form = Open();
    Trigger(*form, "mnuRollFOrward");
    Trigger(*form, "mnuPayoff");
    EXPECT_EQ(Heard().size(), 2U);
    EXPECT_EQ(ListRows(*form, "lvw"), Said{});
    Answer({true});
    Trigger(*form, "mnuRollFOrward");
    const Said rows = ListRows(*form, "lvw");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows.back().substr(0, 26), "06/01/2024|Mortgage Escrow");
    EXPECT_EQ(rows.front().substr(0, 27), "06/01/2024|Mortgage Payment");
    EXPECT_EQ(Loan("DateUpdated"), "06/01/2024");
}

TEST_F(MortgageCommands, APaymentTakesInAChargeThatIsAddedAndIsPostedOnce) {
    QPointer<frmMortgagePayment> form(new frmMortgagePayment);
    form->Setup(0, kLoan);
    Trigger(*form, "mnuCheckAll");
    Trigger(*form, "mnuUncheckPI");
    EXPECT_EQ(Text(*form, "txtTotalDue"), "855.00"); // escrow and late fees, three times
    Trigger(*form, "mnuChargeAdd");
    const auto charge = Opened<frmMtgLog>();
    ASSERT_TRUE(charge);
    Type(Find<QLineEdit>(*charge, "txtOther"), "5");
    ClickAction(*charge, "OK");
    EXPECT_EQ(Text(*form, "txtTotalDue"), "855.00") << "the user ticks it";
    Trigger(*form, "mnuCheckAll");
    ClickAction(*form, "SUBMIT");
    if (form) ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Count("Transactions"), "1");
    EXPECT_EQ(Count("MortgageLog WHERE IdTransaction = 0"), "0");
}

TEST_F(MortgageCommands, ASaveThatFailsKeepsWhatWasEntered) {
    const auto form = Open();
    Type(Find<QLineEdit>(*form, "txtDescription"), "Renamed");
    ExpectKept(*form, "APPLY", "UPDATE ON Mortgage");
    EXPECT_EQ(Loan("Description"), "Renamed");
    EXPECT_FALSE(form->Dirty());

    QPointer<frmMtgLog> charge(new frmMtgLog);
    charge->Setup(0, kLoan);
    Type(Find<QLineEdit>(*charge, "txtOther"), "7");
    ExpectKept(*charge, "OK", "INSERT ON MortgageLog");
    EXPECT_EQ(Count("MortgageLog WHERE Total = 7"), "1");

    QPointer<frmMortgagePayment> payment(new frmMortgagePayment);
    payment->Setup(0, kLoan);
    Trigger(*payment, "mnuCheckAll");
    ExpectKept(*payment, "SUBMIT", "UPDATE ON Mortgage");
    EXPECT_EQ(Count("Transactions"), "1");
    EXPECT_EQ(Loan("CurrentPeriod"), "4");

    QPointer<frmMortgageWizard> wizard(new frmMortgageWizard);
    wizard->Setup();
    wizard->GoTo(1);
    Type(Find<QLineEdit>(*wizard, "txtAccount"), "New Lender");
    wizard->GoTo(3);
    Type(Find<QLineEdit>(*wizard, "dpFirstDue"), "1/1/2023");
    Type(Find<QLineEdit>(*wizard, "txtLoanNumber"), "L-1");
    wizard->GoTo(4);
    Type(Find<QLineEdit>(*wizard, "dpNextDue"), "6/1/2024");
    Type(Find<QLineEdit>(*wizard, "txtCurrPV"), "98500");
    wizard->GoTo(5);
    EXPECT_EQ(Heard(), Said{});
    ExpectKept(*wizard, "FINISH", "INSERT ON Mortgage");
    EXPECT_EQ(Count("Mortgage"), "2");
    EXPECT_EQ(Count("Account WHERE ShowAs = 'New Lender'"), "1") << "of the second time only";
}

} // namespace

} // namespace tests
