// One rent, step by step: the first of the month passes, and what follows from it on the screens.

#include <fmt/core.h>
#include <QTabBar>

#include "alerts/screens/Alerts.h"
#include "books/TransactionListeners.h"
#include "books/screens/frmTransaction.h"
#include "core/DailyRun.h"
#include "core/EditRecord.h"
#include "leases/LeaseRun.h"
#include "leases/Ledger.h"
#include "leases/screens/LeaseScreens.h"
#include "leases/screens/frmLease.h"
#include "leases/screens/frmRentPayment.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "support/Dump.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using leases::screens::frmLease;
using leases::screens::frmRentPayment;
using platform::Date;

class RoadOfARent : public LeaseScreenTest {
  protected:
    RoadOfARent() {
        core::App().DbPath = PathTo("");
        core::RegisterRunStep(core::RunStep::Leases, leases::UpdateLeases);
        page_.resize(900, 560);
        page_.show();
        // Her payment triggers the manager's fee.
        Run("INSERT INTO AutoEvent (IdAutoEvent, EventType, Enabled, TriggerType, TriggerID, "
            "TriggerTaxCategory, EventAction, DebitType, DebitId, CreditType, CreditId, Amount, "
            "TaxCategory, IEN, Description) VALUES (500, 2, True, 5, 30, 'Rent Payment', 1, 1, 60, "
            "1, 61, 80, 'Management Fees', 1, 'Fee')");
    }
    ~RoadOfARent() override { core::RegisterRunStep(core::RunStep::Leases, nullptr); }

    void Live(Date day) {
        platform::SetToday(day);
        core::UpdateRecords(nobody_);
        page_.Refresh();
    }
    Said RentNotices() {
        auto& list = Find<QListWidget>(page_, "lvwAlerts");
        Said lines;
        for (int row = 0; row < list.count(); ++row) {
            const std::string line = list.item(row)->text().toStdString();
            if (line.starts_with("Rent Notice: ")) lines.push_back(line);
        }
        return lines;
    }
    void OpenFirstNotice() {
        auto& list = Find<QListWidget>(page_, "lvwAlerts");
        const QPoint middle = list.visualItemRect(list.item(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle);
    }

  private:
    struct Nobody : core::RunListener {
        void Posted(core::RecordKind, std::int32_t, std::string_view,
                    const std::vector<core::PostedRow>&) override {}
        void Failed(core::RecordKind, std::int32_t, std::string_view,
                    std::string_view reason) override {
            ADD_FAILURE() << reason;
        }
    };

    Nobody nobody_;
    alerts::screens::Alerts page_;
};

TEST_F(RoadOfARent, GoesFromTheFirstOfTheMonthToTheBooks) {
    Set("DateNextDue", "06/01/2024");
    Live(Date(2024, 5, 31));
    EXPECT_EQ(RentNotices(), Said{});
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog"), "0");

    Live(Date(2024, 6, 1));
    EXPECT_EQ(Ask("SELECT Class * 100 + Flags * 10 + IdTransaction FROM RentLog WHERE "
                  "Category = 'Rent' AND Description = 'Rent due 06/01/2024'"),
              "110");
    EXPECT_EQ(Lease("RentStatus"), "Due");
    ASSERT_EQ(RentNotices().size(), 1U);

    OpenFirstNotice();
    const auto lease = Opened<frmLease>();
    ASSERT_TRUE(lease);
    Find<QTabWidget>(*lease, "tabs").setCurrentIndex(4);
    ClickOn(Find<QPushButton>(*lease, "cmdRent"));
    const auto payment = Opened<frmRentPayment>();
    ASSERT_TRUE(payment);
    EXPECT_EQ(Text(*payment, "lblOutlook"),
              "1 charge, next due date moves from 06/01/2024 to 07/01/2024");
    ClickAction(*payment, "SUBMIT");
    EXPECT_EQ(Heard(), Said{});

    EXPECT_EQ(Lease("DateNextDue"), "07/01/2024");
    EXPECT_EQ(Text(*lease, "dpDateNextDue"), "07/01/2024");
    EXPECT_EQ(Text(*lease, "txtRentStatus"), "OK");
    EXPECT_EQ(ListRows(*lease, "lvw"), Said{});
    Find<QTabBar>(Find<QWidget>(*lease, "ucLL"), "tab").setCurrentIndex(1);
    EXPECT_EQ(ListRows(*lease, "lvw"), (Said{"06/01/2024|Rent Payment|Rent Payment|(950.00)",
                                             "06/01/2024|Rent|Rent due 06/01/2024|950.00"}));
    Live(Date(2024, 6, 1));
    EXPECT_EQ(RentNotices(), Said{});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE Amount = 950 AND DebitId = 30 "
                  "AND CreditId = 60 AND Class = 1"),
              "1");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE Amount = 80 "
                  "AND TaxCategory = 'Management Fees' AND CheckNum = 'AutoEvent'"),
              "1")
        << "her payment set off the fee";
}

/// The days on which the rents of a year are paid: every third is a week late, and by then has a
/// late fee with it.
std::vector<Date> PayDays() {
    std::vector<Date> days;
    for (int month = 0; month < 12; ++month) {
        const Date first = DateAdd(platform::Interval::Month, month, Date(2024, 6, 1));
        days.push_back(DateAdd(platform::Interval::Day, month % 3 == 0 ? 7 : 0, first));
    }
    return days;
}

class AYear : public RoadOfARent {
  protected:
    AYear() {
        Set("DateNextDue", "06/01/2024");
        Run("DELETE * FROM Mortgage");
    }

    /// Lives it with the companion alone, on these books.
    static std::vector<std::string> LiveByCompanion(const std::filesystem::path& books) {
        for (const Date day : PayDays()) {
            for (const std::string& words :
                 {std::string("update"), fmt::format("pay {}", kLease)}) {
                const std::string line =
                    fmt::format("{} --data {} --today {} {} >/dev/null", VESTRELCTL, books.string(),
                                day.ToText(), words);
                EXPECT_EQ(std::system(line.c_str()), 0) << line;
            }
        }
        core::App().Connection.Open(books / "Vestrel.mdb");
        return support::Dump();
    }
    void LiveByScreens() {
        core::EditRecord(core::kLease, kLease);
        const auto lease = Opened<frmLease>();
        for (const Date day : PayDays()) {
            Live(day);
            ClickOn(Find<QPushButton>(*lease, "cmdRent"));
            const auto payment = Opened<frmRentPayment>();
            ASSERT_TRUE(payment);
            EXPECT_EQ(Text(*payment, "txtAmount"), day.Day() == 1 ? "950.00" : "990.00");
            ClickAction(*payment, "SUBMIT");
            support::SettleEvents();
        }
    }
};

TEST_F(AYear, IsTheSameByTheScreensAndByTheCompanion) {
    const support::TemporaryFolder other;
    core::App().Connection.Close();
    for (const auto* file : {"Vestrel.mdb", "Version"})
        std::filesystem::copy_file(Folder() / file, other / file);
    core::App().Connection.Open(Folder() / "Vestrel.mdb");
    LiveByScreens();
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Lease("DateNextDue"), "06/01/2025");
    EXPECT_EQ(Lease("RentDue"), "0");
    EXPECT_EQ(Ask("SELECT Sum(Amount) FROM Transactions WHERE Class = 1"), "11560");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions WHERE CheckNum = 'AutoEvent'"), "12");
    EXPECT_EQ(Ask("SELECT Count(*) FROM RentLog WHERE IdTransaction = 0"), "0");
    const std::vector<std::string> screens = support::Dump();
    core::App().Connection.Close();
    EXPECT_EQ(LiveByCompanion(other.Path()), screens);
}

TEST_F(RoadOfARent, ADepositIsPaidAndGivenBack) {
    books::RegisterTransactionListener(leases::WriteDepositRow);
    Charge("05/01/2024", 500, leases::RentFlags::Ordinary, core::TransactionClass::Deposit);
    core::EditRecord(core::kLease, kLease);
    const auto lease = Opened<frmLease>();
    const QWidget& ledger = Find<QWidget>(*lease, "ucLL");
    Find<QTabWidget>(*lease, "tabs").setCurrentIndex(4);
    Find<QTabBar>(ledger, "tab").setCurrentIndex(4);
    ClickOn(Find<QPushButton>(ledger, "cmdRent"));
    ClickAction(*Opened<frmRentPayment>(), "SUBMIT");
    EXPECT_EQ(Text(*lease, "lblDepositBalance"), "500.00");
    ClickOn(Find<QPushButton>(ledger, "cmdRefund"));
    auto screen = Opened<books::screens::frmTransaction>();
    ASSERT_TRUE(screen);
    EXPECT_EQ(Text(*screen, "txtAmount"), "500.00");
    Type(Find<QLineEdit>(*screen, "txtAmount"), "450");
    ClickAction(*screen, "CLOSE");
    support::SettleEvents();
    EXPECT_EQ(Text(*lease, "lblDepositRefunded"), "450.00");
    EXPECT_EQ(Text(*lease, "lblDepositBalance"), "50.00");
    EXPECT_EQ(Ask("SELECT TaxCategory + '|' + DebitDesc + '|' + CreditDesc FROM Transactions "
                  "WHERE Flags = 3 AND Class = 3"),
              "Deposit Refund|River Bank|Smith, John Q");
    Find<QTabBar>(ledger, "tab").setCurrentIndex(5);
    EXPECT_EQ(ListRows(*lease, "lvw").size(), 3U) << "the deposit, its payment and the refund";
    ClickOn(Find<QPushButton>(ledger, "cmdCharge"));
    screen = Opened<books::screens::frmTransaction>();
    ASSERT_TRUE(screen);
    EXPECT_EQ(Text(*screen, "txtAmount"), "50.00") << "what the refund left";
    EXPECT_EQ(Text(*screen, "cboTo"), "") << "nobody takes it whom the user didn't choose";
    screen->CloseUnasked();
    EXPECT_EQ(Heard(), Said{});
}

} // namespace

} // namespace tests
