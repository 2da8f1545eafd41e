// Payments by amount, returned payments and the setting of credits, on their screens.

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTreeWidget>

#include "core/Globals.h"
#include "core/binding/DateEdit.h"
#include "leases/Credits.h"
#include "leases/RentPayment.h"
#include "leases/screens/PaymentScreenBooks.h"
#include "leases/screens/frmLease.h"
#include "leases/screens/frmReturnPayment.h"
#include "platform/qt/Text.h"

namespace tests {

namespace {

using leases::TransactionClass;
using leases::screens::frmLease;
using leases::screens::frmReturnPayment;
using platform::qt::FromScreen;

class CreditScreen : public PaymentScreenBooks {
  protected:
    static std::int32_t PayAll() {
        return leases::SubmitPayment(leases::ProposePayment(kLease, TransactionClass::Rent));
    }
    /// The rows of the preview: the first column and the amount.
    static Said Preview(const QWidget& form) {
        const auto& list = Find<QTreeWidget>(form, "lvwPreview");
        Said rows;
        for (int row = 0; row < list.topLevelItemCount(); ++row) {
            const QTreeWidgetItem& item = *list.topLevelItem(row);
            rows.push_back(FromScreen(item.text(0) + "|" + item.text(4)));
        }
        return rows;
    }
    static std::string OpenRows(std::string_view what) {
        return Ask("SELECT " + std::string(what) +
                   " FROM RentLog WHERE IdTransaction = 0 AND Class = 1");
    }
};

TEST_F(CreditScreen, AnAmountShowsEachRowBeforeItPostsThem) {
    const auto form = Open();
    EXPECT_FALSE(Find<QWidget>(*form, "lvwPreview").isVisible());
    Type(Find<QLineEdit>(*form, "txtReceived"), "1200");
    EXPECT_TRUE(Find<QWidget>(*form, "lvwPreview").isVisible());
    EXPECT_EQ(Preview(*form),
              (Said{"Transaction|1,200.00", "Charge paid|950.00", "Split in two|950.00",
                    "Part paid|250.00", "Part left open|700.00", "Payment in the ledger|(1,200.00)",
                    "Next due date|"}));
    EXPECT_EQ(Text(*form, "lblOutlook"),
              "1 charge paid and one in part, next due date moves from 04/01/2024 to 05/01/2024");
    EXPECT_EQ(Text(*form, "txtAmount"), "1200.00");
    EXPECT_EQ(support::Portray(*form, "payment-by-amount"), Said{});
    Find<QCheckBox>(*form, "chkRentPart").setChecked(true);
    EXPECT_EQ(Text(*form, "lblOutlook"),
              "1 charge paid and one in part, next due date moves from 04/01/2024 to 06/01/2024");
    Find<QCheckBox>(*form, "chkRentPart").setChecked(false);
    // The fee first, and the rent of April not at all.
    auto& list = Find<QTreeWidget>(*form, "lvwCharges");
    list.setCurrentItem(list.topLevelItem(2));
    ClickOn(Find<QPushButton>(*form, "cmdEarlier"));
    list.topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    EXPECT_EQ(Preview(*form),
              (Said{"Transaction|1,200.00", "Charge paid|40.00", "Charge paid|950.00",
                    "Paid ahead|210.00", "Credit left open|(210.00)",
                    "Payment in the ledger|(1,200.00)", "Next due date|"}));
    // A change elsewhere neither loses the order nor the ticks that the user chose.
    Charge("05/09/2024", 5);
    support::SettleEvents();
    EXPECT_EQ(ListRows(*form, "lvwCharges")[1].substr(0, 12), "x 05/06/2024");
    ClickOn(Find<QPushButton>(*form, "cmdRestoreTicks"));
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_FALSE(form && form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE Amount = 1200"), "1");
    EXPECT_EQ(OpenRows("Sum(Amount)"), "745"); // April's 950, and a credit of 205
    EXPECT_EQ(Lease("DateNextDue"), "05/01/2024");
}

TEST_F(CreditScreen, WhatIsNoAmountIsRefusedAndNothingIsPosted) {
    const auto form = Open();
    for (const auto& [text, why] : std::vector<std::pair<const char*, const char*>>{
             {"0", "The amount received must be more than zero."},
             {"-5", "The amount received must be more than zero."},
             {"x", "The amount received is not an amount of money."}}) {
        // A key filter may keep letters out; pasting doesn't ask it.
        Find<QLineEdit>(*form, "txtReceived").setText(QLatin1String(text));
        EXPECT_TRUE(Preview(*form).empty()) << text;
        ClickAction(*form, "SUBMIT");
        const Said heard = Heard();
        ASSERT_EQ(heard.size(), 1U) << text;
        EXPECT_NE(heard.front().find(why), std::string::npos) << heard.front();
        EXPECT_TRUE(form && form->isVisible());
    }
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
    // Without an amount the ticked charges are paid whole, as before.
    Find<QLineEdit>(*form, "txtReceived").clear();
    EXPECT_EQ(Text(*form, "txtAmount"), "1940.00");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "1940");
}

TEST_F(CreditScreen, AnAmountPlannedOnAChargeThatWasPaidSinceIsRefused) {
    const auto form = Open();
    Type(Find<QLineEdit>(*form, "txtReceived"), "1000");
    core::App().Connection.Execute("UPDATE RentLog SET Amount = 900 WHERE Amount = 950");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard().size(), 1U);
    EXPECT_TRUE(form && form->isVisible());
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
    EXPECT_EQ(Preview(*form)[1], "Charge paid|900.00"); // as the books are now
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Ask("SELECT Amount FROM Transactions"), "1000");
}

TEST_F(CreditScreen, APaymentIsReturnedFromItsScreenAndFromTheLedger) {
    const std::int32_t id = PayAll();
    const auto payment = Open(id);
    EXPECT_FALSE(Find<QWidget>(*payment, "amountPanel").isVisible());
    Trigger(*payment, "mnuReturnPayment");
    support::SettleEvents();
    EXPECT_FALSE(payment && payment->isVisible());
    auto form = Opened<frmReturnPayment>();
    ASSERT_TRUE(form);
    EXPECT_EQ(Text(*form, "lblPayment"), "1,940.00 of 05/17/2024 from Smith, John Q");
    EXPECT_EQ(Text(*form, "dpNextDue"), "04/01/2024");
    Type(Find<QLineEdit>(*form, "txtFee"), "25");
    EXPECT_EQ(
        Preview(*form),
        (Said{"Transaction|(1,940.00)", "Charge open again|950.00", "Charge open again|950.00",
              "Charge open again|40.00", "In the place of the charges|1,940.00",
              "Settled by the return|(1,940.00)", "Payment in the ledger|1,940.00",
              "Fee charged|25.00", "Next due date|", "Payment marked|"}));
    EXPECT_EQ(support::Portray(*form, "returned-payment"), Said{});
    Type(Find<QLineEdit>(*form, "dpReturned"), "5/16/2024");
    EXPECT_TRUE(Preview(*form).empty());
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard().size(), 1U); // not before it was made
    Type(Find<QLineEdit>(*form, "dpReturned"), "5/18/2024");
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(OpenRows("Sum(Amount)"), "1965");
    EXPECT_EQ(Lease("DateNextDue"), "04/01/2024");

    // Paid once more, and returned from the history of the ledger.
    PayAll();
    (new frmLease)->Setup(kLease);
    const auto lease = Opened<frmLease>();
    auto& tab = Find<QTabBar>(*lease, "tab");
    EXPECT_FALSE(Find<QWidget>(*lease, "cmdReturn").isVisibleTo(&Find<QWidget>(*lease, "ucLL")));
    tab.setCurrentIndex(1);
    auto& rows = Find<QTreeWidget>(*lease, "lvw");
    rows.setCurrentItem(rows.topLevelItem(0));
    Find<QPushButton>(*lease, "cmdReturn").click();
    form = Opened<frmReturnPayment>();
    ASSERT_TRUE(form);
    ClickAction(*form, "SUBMIT");
    EXPECT_EQ(OpenRows("Sum(Amount)"), "1965");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions"), "0");
    // Once returned it isn't returned again.
    (new frmReturnPayment)->Setup(id);
    EXPECT_EQ(Heard().size(), 1U);
    support::SettleEvents();
    EXPECT_FALSE(Opened<frmReturnPayment>());
}

TEST_F(CreditScreen, TheLeaseKeepsWhetherItSettlesChargesFromCredit) {
    (new frmLease)->Setup(kLease);
    const auto form = Opened<frmLease>();
    auto& box = Find<QCheckBox>(*form, "chkSettleCharges");
    EXPECT_FALSE(box.isChecked());
    EXPECT_FALSE(form->Dirty());
    box.setChecked(true);
    EXPECT_TRUE(form->Dirty());
    EXPECT_FALSE(leases::SettlesCharges(kLease));
    ClickAction(*form, "APPLY");
    EXPECT_TRUE(leases::SettlesCharges(kLease));
    EXPECT_FALSE(form->Dirty());
    EXPECT_TRUE(box.isChecked());
    // Another program's change isn't overwritten by a save of something else.
    leases::SetSettlesCharges(kLease, false);
    Type(Find<QLineEdit>(*form, "txtRent"), "960");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Lease("Rent"), "960");
    EXPECT_FALSE(leases::SettlesCharges(kLease));
    EXPECT_FALSE(box.isChecked());
    // Opened on a lease that has it, the form isn't dirty.
    form->close();
    support::SettleEvents();
    leases::SetSettlesCharges(kLease, true);
    (new frmLease)->Setup(kLease);
    const auto again = Opened<frmLease>();
    EXPECT_TRUE(Find<QCheckBox>(*again, "chkSettleCharges").isChecked());
    EXPECT_FALSE(again->Dirty());
}

} // namespace

} // namespace tests
