#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <functional>

#include "core/BooksSettings.h"
#include "leases/screens/LeaseScreens.h"
#include "leases/screens/frmChargeFrom.h"
#include "leases/screens/frmLease.h"
#include "leases/screens/frmLeaseWizard.h"

namespace tests {

namespace {

using leases::screens::frmChargeFrom;
using leases::screens::frmLease;
using leases::screens::frmLeaseWizard;
using Reply = std::function<void(frmChargeFrom&)>;

constexpr const char* kNewLease = "SELECT Count(*) FROM Lease WHERE IdTenant = 32";

class ChargeFromScreen : public LeaseScreenTest {
  protected:
    ChargeFromScreen() { core::SetBooksKeptSince(platform::Date(2024, 4, 1)); }

    /// Does something that asks, and answers; fails if it doesn't ask just once.
    static void Do(const std::function<void()>& command, const Reply& reply) {
        int asked = 0;
        QTimer::singleShot(0, [&] {
            const auto question = Opened<frmChargeFrom>();
            if (!question) return;
            ++asked;
            reply(*question);
            if (question && question->isVisible()) question->reject();
        });
        command();
        support::SettleEvents();
        EXPECT_EQ(asked, 1);
    }
    static void Press(frmChargeFrom& question, QDialogButtonBox::StandardButton button) {
        Find<QDialogButtonBox>(question, "buttons").button(button)->click();
    }
    static QPointer<frmLease> NewLeaseOf(const char* start) {
        QPointer<frmLease> form(new frmLease);
        form->Setup(0);
        Choose(*form, "cboIdUnit", "12 Elm St B");
        Choose(*form, "cboIdTenant", "Zu, Li");
        Type(Find<QLineEdit>(*form, "dpDateActive"), start);
        return form;
    }
};

TEST_F(ChargeFromScreen, AsksBeforeALeaseThatIsEnteredLateIsSaved) {
    const auto form = NewLeaseOf("03/10/2022");
    Do([&] { ClickAction(*form, "APPLY"); },
       [&](frmChargeFrom& question) {
           EXPECT_TRUE(Find<QRadioButton>(question, "optSince").isChecked());
           EXPECT_EQ(ListRows(question, "lvwPreview").front(),
                     "Charge posted|04/10/2024|Rent|Rent due 04/10/2024|950.50");
           EXPECT_EQ(support::LookFaults(question, "frmChargeFrom"), Said{});
           Find<QRadioButton>(question, "optStart").click();
           EXPECT_EQ(ListRows(question, "lvwPreview").front(),
                     "Charge posted|03/10/2022|Rent|Rent due 03/10/2022|950.50");
           Find<QRadioButton>(question, "optDay").click();
           Type(Find<QLineEdit>(question, "dpFrom"), "nonsense");
           const auto* save =
               Find<QDialogButtonBox>(question, "buttons").button(QDialogButtonBox::Ok);
           EXPECT_FALSE(save->isEnabled());
           // From there on no rent falls due.
           for (const char* const day : {"12/31/9999", "12/11/9999"}) {
               Type(Find<QLineEdit>(question, "dpFrom"), day);
               EXPECT_FALSE(save->isEnabled()) << day;
               EXPECT_TRUE(Find<QLabel>(question, "lblSummary").text().startsWith("The calendar"));
           }
           Type(Find<QLineEdit>(question, "dpFrom"), "12/10/9999");
           EXPECT_TRUE(save->isEnabled());
           Press(question, QDialogButtonBox::Cancel);
       });
    EXPECT_EQ(Ask(kNewLease), "0");
    EXPECT_TRUE(form->Dirty()) << "nothing entered is lost";
    EXPECT_EQ(Text(*form, "dpDateNextDue"), "03/10/2022");

    Do([&] { ClickAction(*form, "APPLY"); },
       [](frmChargeFrom& question) {
           Press(question, QDialogButtonBox::Ok);
           Press(question, QDialogButtonBox::Ok); // a second click
       });
    EXPECT_EQ(Ask(kNewLease), "1");
    EXPECT_EQ(Text(*form, "dpDateNextDue"), "04/10/2024");
    EXPECT_EQ(Text(*form, "dpDateActive"), "03/10/2022");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "0") << "the run posts, not the question";
    // Saving it again asks nothing; nothing would be charged for the time before.
    Type(Find<QLineEdit>(*form, "txtRent"), "960");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT Rent FROM Lease WHERE IdTenant = 32"), "960");
    EXPECT_EQ(Heard(), Said{});
}

TEST_F(ChargeFromScreen, TakesAnyAnswer) {
    const struct {
        const char* option;
        const char* day;
        const char* nextDue;
    } answers[] = {{"optStart", "", "03/10/2022"},
                   {"optSince", "", "04/10/2024"},
                   {"optDay", "4/11/24", "05/10/2024"},
                   {"optDay", "7/1/24", "07/10/2024"}};
    for (const auto& each : answers) {
        const platform::UnitOfWork rolledBack(core::App().Connection);
        const auto wizard = QPointer<frmLeaseWizard>(new frmLeaseWizard);
        wizard->Setup();
        Choose(*wizard, "cboProperty", "12 Elm St B");
        Choose(*wizard, "cboTenant", "Zu, Li");
        Type(Find<QLineEdit>(*wizard, "dpStartDate"), "03/10/2022");
        wizard->GoTo(4);
        Do([&] { ClickAction(*wizard, "FINISH"); },
           [&](frmChargeFrom& question) {
               Find<QRadioButton>(question, each.option).click();
               if (*each.day) Type(Find<QLineEdit>(question, "dpFrom"), each.day);
               Press(question, QDialogButtonBox::Ok);
           });
        EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease WHERE IdTenant = 32"), each.nextDue);
        EXPECT_FALSE(wizard && wizard->isVisible());
        if (const auto lease = Opened<frmLease>()) lease->CloseUnasked();
        support::SettleEvents();
    }
}

TEST_F(ChargeFromScreen, SavesALeaseWhoseStoredDateCantBeRead) {
    Set("DateNextDue", "soon");
    Set("DateUpdated", "");
    const auto form = QPointer<frmLease>(new frmLease);
    form->Setup(kLease);
    Heard(); // it couldn't be brought up to date
    Type(Find<QLineEdit>(*form, "txtRent"), "960");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Lease("Rent"), "960");
    EXPECT_EQ(Lease("DateNextDue"), "soon");
}

TEST_F(ChargeFromScreen, AsksNothingInBooksThatDontSaySinceWhen) {
    core::SetBooksKeptSince({});
    const auto form = NewLeaseOf("03/10/2022");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT DateNextDue FROM Lease WHERE IdTenant = 32"), "03/10/2022");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "0");
}

} // namespace

} // namespace tests
