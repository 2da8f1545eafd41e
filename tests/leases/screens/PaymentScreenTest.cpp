#include <QHeaderView>
#include <filesystem>
#include <fstream>

#include "core/Globals.h"
#include "core/binding/DateEdit.h"
#include "leases/RentPayment.h"
#include "leases/screens/PaymentScreenBooks.h"
#include "leases/screens/frmRentLog.h"
#include "leases/screens/frmRentSplit.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"

namespace tests {

namespace {

using core::TransactionClass;
using leases::LeaseUpdate;
using leases::RentFlags;
using leases::screens::frmRentLog;
using leases::screens::frmRentSplit;

class PaymentScreen : public PaymentScreenBooks {
  protected:
    static void Tick(const QWidget& form, int row, bool ticked) {
        Find<QTreeWidget>(form, "lvwCharges")
            .topLevelItem(row)
            ->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
    }
    static void GoTo(const QWidget& form, int row) {
        auto& list = Find<QTreeWidget>(form, "lvwCharges");
        list.setCurrentItem(list.topLevelItem(row));
    }
    static void ClickCaption(const QTreeWidget& list, int column) {
        const QHeaderView& header = *list.header();
        const QPoint middle(header.sectionViewportPosition(column) + 5, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, middle);
    }
    static std::string Outlook(const QWidget& form) { return Text(form, "lblOutlook"); }
    static std::string Transaction(std::string_view fields) {
        return Ask("SELECT " + std::string(fields) + " FROM Transactions");
    }
};

TEST_F(PaymentScreen, OpensOnAllThatIsOpenAndFollowsTheTicks) {
    const auto form = Open();
    EXPECT_EQ(ListRows(*form, "lvwCharges"), (Said{"x 04/01/2024|Rent|Rent due 04/01/2024|950.00",
                                                   "x 05/01/2024|Rent|Rent due 05/01/2024|950.00",
                                                   "x 05/06/2024|Late Fee|Late Fee|40.00"}));
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Rent Payment: Smith, 12 Elm St B"));
    EXPECT_EQ(Text(*form, "txtAmount"), "1940.00");
    EXPECT_EQ(Outlook(*form), "3 charges, next due date moves from 04/01/2024 to 06/01/2024");
    EXPECT_EQ(Text(*form, "cboFrom"), "Smith, John Q");
    EXPECT_EQ(Text(*form, "cboTo"), "River Bank");
    EXPECT_EQ(Text(*form, "dpEffectiveDate"), "05/17/2024");
    EXPECT_EQ(Text(*form, "txtDescription"), "Rent Payment for Smith, 12 Elm St B");
    EXPECT_FALSE(form->Dirty());
    Tick(*form, 1, false);
    EXPECT_TRUE(form->Dirty());
    EXPECT_EQ(Text(*form, "txtAmount"), "990.00");
    EXPECT_EQ(Outlook(*form), "2 charges, next due date moves from 04/01/2024 to 05/01/2024");
    Trigger(*form, "mnuCheckOther");
    EXPECT_EQ(Text(*form, "txtAmount"), "40.00");
    EXPECT_EQ(Outlook(*form), "1 charge, next due date stays 04/01/2024");
    Trigger(*form, "mnuCheckRent");
    EXPECT_EQ(Text(*form, "txtAmount"), "1900.00");
    Trigger(*form, "mnuCheckAll");
    EXPECT_EQ(Text(*form, "txtAmount"), "1940.00");
    for (int row = 0; row < 3; ++row)
        Tick(*form, row, false);
    EXPECT_EQ(Text(*form, "txtAmount"), ".00");
    EXPECT_EQ(Outlook(*form), "Nothing is ticked: a payment of 0.00 will be posted");
}

TEST_F(PaymentScreen, SubmitPostsWhatShowsAndCloses) {
    const auto form = Open();
    Tick(*form, 1, false);
    Type(Find<QLineEdit>(*form, "txtCheckNumber"), "1'007");
    Type(Find<QLineEdit>(*form, "dpEffectiveDate"), "5/2/24");
    Choose(*form, "cboPaymentType", "Partial Rent Payment");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_EQ(Transaction("DateEffective + '|' + CheckNum + '|' + TaxCategory + '|' + DebitDesc + "
                          "'|' + CreditDesc"),
              "05/02/2024|1'007|Partial Rent Payment|Smith, John Q|River Bank");
    EXPECT_EQ(Transaction("Amount"), "990");
    EXPECT_EQ(Lease("DateNextDue"), "05/01/2024");
    EXPECT_EQ(Lease("RentDue"), "950");
}

TEST_F(PaymentScreen, ATypedPayerAndATypedReceiverAreNames) {
    const auto form = Open();
    Type(Find<QComboBox>(*form, "cboFrom"), "Her uncle");
    Type(Find<QComboBox>(*form, "cboTo"), "Cash box");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    core::NotifyAll(core::kTenant, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "cboFrom"), "Her uncle") << "a refill leaves what is typed";
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Transaction("DebitDesc + '|' + CreditDesc"), "Her uncle|Cash box");
    EXPECT_EQ(Transaction("DebitId + CreditId"), "0");
}

TEST_F(PaymentScreen, APaymentWithoutAnAccountHasNone) {
    Set("RentAccount", "0");
    const auto form = Open();
    EXPECT_EQ(Text(*form, "cboTo"), "");
    const std::string line = "3 charges, next due date moves from 04/01/2024 to 06/01/2024";
    EXPECT_EQ(Outlook(*form), line + ". No account is chosen to receive it");
    Choose(*form, "cboTo", "River Bank");
    EXPECT_EQ(Outlook(*form), line);
    Type(Find<QComboBox>(*form, "cboTo"), "Cash");
    EXPECT_EQ(Outlook(*form), line + ". \"Cash\" receives it, which is not one of your accounts");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Transaction("CreditId"), "0");
}

TEST_F(PaymentScreen, TheKindOfPayerChangesWhoIsOffered) {
    const auto form = Open();
    Choose(*form, "cboFromType", "Account");
    Choose(*form, "cboFrom", "Jo Owner");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Transaction("DebitType"), "1");
    EXPECT_EQ(Transaction("DebitId"), "62");
    EXPECT_EQ(Transaction("IdTenant"), "62") << "as the payer's id, whatever he is";
}

TEST_F(PaymentScreen, HearsOfChargesThatComeAndGo) {
    const auto form = Open();
    Run("DELETE * FROM RentLog WHERE Amount = 40");
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "txtAmount"), "1900.00");
    EXPECT_FALSE(form->Dirty());
    GoTo(*form, 0);
    Trigger(*form, "mnuChargeAdd");
    const auto charge = Opened<frmRentLog>();
    ASSERT_TRUE(charge);
    Type(Find<QLineEdit>(*charge, "txtAmount"), "25");
    ClickAction(*charge, "SAVE");
    EXPECT_EQ(Text(*form, "txtAmount"), "1925.00");
}

TEST_F(PaymentScreen, ASplitChargeCanBePaidInPart) {
    const auto form = Open();
    auto& restore = Find<QPushButton>(*form, "cmdRestoreTicks");
    Tick(*form, 1, false);
    Tick(*form, 2, false);
    GoTo(*form, 0);
    Trigger(*form, "mnuChargeSplit");
    const auto split = Opened<frmRentSplit>();
    ASSERT_TRUE(split);
    Type(Find<QLineEdit>(*split, "txtAmount1"), "300");
    EXPECT_EQ(Text(*split, "txtAmount2"), "650.00");
    EXPECT_FALSE(restore.isVisible());
    ClickAction(*split, "SAVE");
    EXPECT_EQ(ListRows(*form, "lvwCharges").size(), 4U);
    EXPECT_EQ(Text(*form, "txtAmount"), "1940.00") << "every row is ticked again";
    EXPECT_EQ(Outlook(*form),
              "4 charges, next due date moves from 04/01/2024 to 06/01/2024. The charges changed: "
              "every open charge is ticked again");
    ASSERT_TRUE(restore.isVisible());
    restore.click();
    EXPECT_EQ(Text(*form, "txtAmount"), "300.00") << "without the deferred part";
    EXPECT_EQ(Outlook(*form), "1 charge, next due date moves from 04/01/2024 to 05/01/2024");
    EXPECT_FALSE(restore.isVisible());
}

TEST_F(PaymentScreen, TicksAreRestoredAfterAnyChangeUntilTheUserTicksAnew) {
    const auto form = Open();
    auto& restore = Find<QPushButton>(*form, "cmdRestoreTicks");
    Tick(*form, 1, false);
    Charge("05/07/2024", 25);
    Run("UPDATE Lease SET Notes = 'x'");
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "txtAmount"), "1965.00");
    restore.click();
    EXPECT_EQ(Text(*form, "txtAmount"), "1015.00") << "with the charge that was added";
    Charge("05/08/2024", 5);
    ASSERT_TRUE(restore.isVisible());
    Tick(*form, 0, false);
    EXPECT_FALSE(restore.isVisible()) << "the ticks are the user's own again";
}

TEST_F(PaymentScreen, KeysTickOpenAndSubmit) {
    const auto form = Open();
    auto& list = Find<QTreeWidget>(*form, "lvwCharges");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    list.setCurrentIndex(list.model()->index(1, 2)); // a click on the description
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(Text(*form, "txtAmount"), "990.00");
    QTest::keyClick(&list, Qt::Key_F2);
    const auto charge = Opened<frmRentLog>();
    ASSERT_TRUE(charge);
    EXPECT_EQ(Text(*charge, "dpDatePosted"), "05/01/2024");
    ClickAction(*charge, "CANCEL");
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_EQ(Transaction("Amount"), "990");
}

TEST_F(PaymentScreen, TheRentAloneIsWhatHasTheFlagOfRent) {
    Run("DELETE * FROM RentLog");
    Charge("05/01/2024", 1, RentFlags::PeriodRent);
    Charge("05/02/2024", 2, RentFlags::DepositRefund);
    const auto form = Open();
    Trigger(*form, "mnuCheckRent");
    EXPECT_EQ(Text(*form, "txtAmount"), "1.00");
}

TEST_F(PaymentScreen, TheDateIsNeverBlank) {
    const auto form = Open();
    auto& date = Find<core::binding::DateEdit>(*form, "dpEffectiveDate");
    Type(date, "5/2/24");
    date.setFocus();
    QTest::keyClick(&date, Qt::Key_Tab);
    date.setFocus();
    date.clear();
    QTest::keyClick(&date, Qt::Key_Return);
    EXPECT_EQ(Transaction("DateEffective"), "05/02/2024");
}

TEST_F(PaymentScreen, ThatStoodOpenWhileAnotherProgramPaidPostsNothing) {
    const auto form = Open();
    const std::int32_t id = leases::SubmitPayment(
        leases::ProposePayment(kLease, TransactionClass::Rent), LeaseUpdate::No);
    // As it was on screen before the broadcast, which another program doesn't send.
    Run("UPDATE RentLog SET IdTransaction = 0 WHERE Flags <> 2");
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    Tick(*form, 2, false);
    Run("UPDATE RentLog SET IdTransaction = " + std::to_string(id));
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{"Vestrel: The charge \"Rent due 04/01/2024\" of 04/01/2024 was paid "
                            "after this payment was opened. Nothing was posted."});
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(ListRows(*form, "lvwCharges"), Said{});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "1");
}

TEST_F(PaymentScreen, SaysThatThePaymentItEditsWasDeleted) {
    ClickAction(*Open(), "SUBMIT");
    const auto form = Open(std::stoi(Transaction("IdTransaction")));
    Run("DELETE * FROM Transactions");
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    EXPECT_EQ(Outlook(*form), "This payment was deleted. Submit stores it again under its number");
}

TEST_F(PaymentScreen, RemovesChargesTheOneAndTheSeveral) {
    const auto form = Open();
    GoTo(*form, 2);
    Answer({false, true, true});
    Trigger(*form, "mnuChargeDelete");
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete selected item?\n\n05/06/2024, Late Fee"});
    EXPECT_EQ(ListRows(*form, "lvwCharges").size(), 3U) << "No keeps it";
    Trigger(*form, "mnuChargeDelete");
    EXPECT_EQ(ListRows(*form, "lvwCharges").size(), 2U);
    Heard();
    Trigger(*form, "mnuSelectAll");
    Trigger(*form, "mnuChargeDelete");
    EXPECT_EQ(Heard(), Said{"Confirm Delete: Delete all selected charges?\n\n"
                            "04/01/2024, Rent due 04/01/2024, 950.00\n"
                            "05/01/2024, Rent due 05/01/2024, 950.00"});
    EXPECT_EQ(ListRows(*form, "lvwCharges"), Said{});
    EXPECT_EQ(Lease("RentDue"), "0") << "the balances follow";
}

TEST_F(PaymentScreen, AStoredPaymentIsEdited) {
    ClickAction(*Open(), "SUBMIT");
    Charge("05/10/2024", 7);
    const std::int32_t id = std::stoi(Transaction("IdTransaction"));
    const auto form = Open(id);
    EXPECT_EQ(form->OpenRecordId(), id);
    EXPECT_EQ(ListRows(*form, "lvwCharges").size(), 3U);
    Find<QCheckBox>(*form, "chkShowPending").click();
    EXPECT_FALSE(form->Dirty()) << "looking changes nothing";
    ASSERT_EQ(ListRows(*form, "lvwCharges").size(), 4U);
    EXPECT_EQ(ListRows(*form, "lvwCharges")[3], "05/10/2024|Late Fee|Late Fee|7.00");
    Tick(*form, 3, true);
    Tick(*form, 0, false);
    EXPECT_EQ(Outlook(*form), "3 charges, next due date stays 06/01/2024");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Transaction("Amount"), "997");
    EXPECT_EQ(Lease("DateNextDue"), "06/01/2024");
    EXPECT_EQ(Lease("RentDue"), "950");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "1");
}

TEST_F(PaymentScreen, ADayThatIsNoneAndAFailureKeepItOpen) {
    const auto form = Open();
    Find<QLineEdit>(*form, "dpEffectiveDate").setText(QStringLiteral("5/45/2024"));
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{"Whoa!: The following errors have occured:\n\n\"5/45/2024\" is not a "
                            "date (mm/dd/yyyy).\n"});
    Find<QLineEdit>(*form, "dpEffectiveDate").setText(QStringLiteral("5/15/2024"));
    Run("DELETE * FROM RentLog WHERE Amount = 40");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{"Vestrel: The charge \"Late Fee\" of 05/06/2024 was deleted after this "
                            "payment was opened. Nothing was posted."});
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
}

TEST_F(PaymentScreen, CancelAsksWhenSomethingWasChanged) {
    Answer({false, true});
    const auto form = Open();
    Tick(*form, 0, false);
    ClickAction(*form, "CANCEL");
    EXPECT_EQ(Heard(), Said{"Whoa!: Close without saving changes?"});
    EXPECT_TRUE(form && form->isVisible());
    ClickAction(*form, "CANCEL");
    EXPECT_FALSE(form && form->isVisible());
    ClickAction(*Open(), "CANCEL");
    EXPECT_EQ(Heard(), Said{"Whoa!: Close without saving changes?"}) << "once, for the changed one";
}

TEST_F(PaymentScreen, OtherClassesOfferTheirOwn) {
    Charge("05/01/2024", 300, RentFlags::Ordinary, TransactionClass::Deposit);
    const auto form = Open(0, TransactionClass::Deposit);
    EXPECT_EQ(Text(*form, "cboPaymentType"), "Deposit Payment");
    EXPECT_EQ(Text(*form, "txtAmount"), "300.00");
    EXPECT_THROW(Trigger(*form, "mnuCheckRent"), std::runtime_error);
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Transaction("IEN"), "2");
    EXPECT_EQ(Lease("DepositPaid"), "300");
}

TEST_F(PaymentScreen, SortsDaysAsDaysAndMoneyAsMoney) {
    Charge("12/31/2023", 1000);
    const auto form = Open();
    auto& list = Find<QTreeWidget>(*form, "lvwCharges");
    ClickCaption(list, 3);
    Said amounts;
    for (const std::string& row : ListRows(*form, "lvwCharges"))
        amounts.push_back(row.substr(row.rfind('|') + 1));
    EXPECT_EQ(amounts, (Said{"40.00", "950.00", "950.00", "1,000.00"}));
    ClickCaption(list, 0);
    ClickCaption(list, 0);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    EXPECT_EQ(ListRows(*form, "lvwCharges").back().substr(0, 12), "x 12/31/2023");
}

TEST_F(PaymentScreen, PrintsTheReceiptOfAPostedPayment) {
    std::filesystem::create_directories(core::App().ReportPath);
    std::ofstream(core::App().ReportPath + "slip.rcpt")
        << "[GENERAL]\nFORM=LEASE\nDESCRIPTION=Rent & more\n";
    reports::LoadReportList();
    int run = 0;
    reports::SetReportViewer([&run](int index) { run = index; });
    auto form = Open();
    const auto receipt = [&] { return &Find<QAction>(*form, "mnuReceiptItem"); };
    EXPECT_EQ(receipt()->text(), "Print Rent && more");
    EXPECT_FALSE(receipt()->isEnabled()) << "nothing is posted yet";
    EXPECT_FALSE(receipt()->toolTip().isEmpty());
    support::ClickAction(*form, "SUBMIT");
    support::SettleEvents();
    const std::int32_t id = std::stoi(Transaction("IdTransaction"));
    form = Open(id);
    receipt()->trigger();
    EXPECT_EQ(run, 2);
    EXPECT_EQ(reports::FindReport(2)->SelectedId, id);
    reports::SetReportViewer(nullptr);
}

} // namespace

} // namespace tests
