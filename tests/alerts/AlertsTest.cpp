#include "alerts/Alerts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "alerts/Notes.h"
#include "alerts/PortfolioSummary.h"
#include "core/Globals.h"
#include "core/Preferences.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "store/CreateDatabase.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace {

using platform::Date;

class HomePage : public testing::Test {
  protected:
    HomePage() {
        store::CreateDatabase(folder_ / "db");
        core::App().Connection.Open(folder_ / "db" / "Vestrel.mdb");
        core::App().DbPath = (folder_ / "db").string();
        core::Preferences() = core::PreferenceValues();
        platform::SetToday(Date(2024, 3, 10));
    }
    ~HomePage() override { core::App().Connection.Close(); }

    static void Run(const std::string& sql) { core::App().Connection.Execute(sql); }

    static std::vector<std::string> Texts() {
        std::vector<std::string> texts;
        for (const alerts::AlertItem& item : alerts::GetAlerts())
            texts.push_back(item.text);
        return texts;
    }

    static void AddLease(const std::string& fields, const std::string& values) {
        Run("INSERT INTO Building (IdBuilding, Address) VALUES (1, '12 Elm Street')");
        Run("INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (2, 1, 'B')");
        Run("INSERT INTO Tenant (IdTenant, LastName) VALUES (3, 'O''Brien')");
        Run("INSERT INTO Lease (IdLease, IdUnit, IdTenant, " + fields + ") VALUES (4, 2, 3, " +
            values + ")");
    }

    support::TemporaryFolder folder_;
};

using Lines = std::vector<std::string>;

TEST_F(HomePage, NamesALeaseWhoseRentIsDue) {
    AddLease("RentStatus", "'Warning'");
    const auto items = alerts::GetAlerts();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].recordKind, core::kLease);
    EXPECT_EQ(items[0].recordId, 4);
    EXPECT_EQ(items[0].text, "Rent Notice: Warning for Lease O'Brien at 12 Elm Street unit B");
    EXPECT_EQ(items[0].picture, "LEASE");

    Run("UPDATE Unit SET Unit = ''");
    EXPECT_EQ(Texts(), Lines{"Rent Notice: Warning for Lease O'Brien at 12 Elm Street"});
    Run("UPDATE Lease SET RentStatus = 'OK'");
    EXPECT_TRUE(Texts().empty());
}

struct Window {
    const char* due;
    const char* expected;
};

TEST_F(HomePage, TellsOfADateOnlyWhileItLiesAheadWithinItsWindow) {
    Run("INSERT INTO Building (IdBuilding, Address) VALUES (1, 'Hill')");
    for (const auto& [due, expected] :
         {Window{"03/09/2024", ""}, Window{"03/10/2024", ""},
          Window{"03/11/2024", "Insurance renewal due in 1 days for Building Hill"},
          Window{"04/09/2024", "Insurance renewal due in 30 days for Building Hill"},
          Window{"04/10/2024", ""}, Window{"", ""}}) {
        Run(std::string("UPDATE Building SET InsNextDue = '") + due + "'");
        EXPECT_EQ(Texts(), *expected == '\0' ? Lines{} : Lines{expected}) << due;
    }
}

TEST_F(HomePage, ReckonsTheEndOfATermInItsOwnUnit) {
    AddLease("Status, DateRenewed, Term, TermType", "'Contracted', '03/31/2023', 1, 'Yearly'");
    struct Term {
        const char* type;
        int term;
        const char* expected;
    };
    for (const auto& [type, term, expected] :
         {Term{"Yearly", 1, "Lease expiring in 21 days for O'Brien at 12 Elm Street unit B"},
          Term{"Month(s)", 12, "Lease expiring in 21 days for O'Brien at 12 Elm Street unit B"},
          Term{"Week(s)", 50, "Lease expiring in 5 days for O'Brien at 12 Elm Street unit B"},
          Term{"Monthly", 11, ""}}) {
        core::App().Connection.Execute("UPDATE Lease SET TermType = ?, Term = ?", {type, term});
        EXPECT_EQ(Texts(), *expected == '\0' ? Lines{} : Lines{expected}) << type;
    }
}

TEST_F(HomePage, KeepsTheOrderOfCausesAndTheWordsForALoanWithoutLender) {
    AddLease("RentStatus", "'Late'");
    Run("INSERT INTO Account (IdAccount, ShowAs) VALUES (9, 'First Bank')");
    Run("INSERT INTO Mortgage (IdMortgage, IdMortgagee, AccountNumber, PmtStatus, "
        "LastEscrowReview) "
        "VALUES (5, 9, 'A-1', 'Due', '03/15/2023')");
    Run("INSERT INTO Mortgage (IdMortgage, AccountNumber, PmtStatus) VALUES (6, 'A-2', 'Late')");
    Run("INSERT INTO WorkOrder (IdWorkOrder, ShortDesc, Status) VALUES (7, 'Leak', 'Vendor')");
    Run("INSERT INTO WorkOrder (IdWorkOrder, ShortDesc, Status) VALUES (8, 'Done', 'Closed')");
    Run("UPDATE Building SET HOANextDue = '03/12/2024'");
    Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('03/10/2024', 'By an event')");
    const Lines expected = {
        "Rent Notice: Late for Lease O'Brien at 12 Elm Street unit B",
        "Mortgage Payment for First Bank account # A-1 is Due",
        "Mortgage Payment for account # A-2 is Late",
        "Open Work Order: Leak",
        "Escrow review due in 5 days for Mortgage account # A-1",
        "HOA renewal due in 2 days for Building 12 Elm Street",
        "By an event",
    };
    EXPECT_EQ(Texts(), expected);

    core::PreferenceValues& wanted = core::Preferences();
    wanted.LateRent = wanted.LateMortgage = wanted.WOStatus = wanted.MtgEscrow = false;
    wanted.LeaseExpiring = wanted.InsRenew = wanted.HOAPmt = false;
    EXPECT_EQ(Texts(), Lines{"By an event"}) << "messages are shown whatever is wanted";
}

TEST_F(HomePage, ShowsAMessageForItsDaysAndOneWithoutADayOnce) {
    Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('03/04/2024', 'six days')");
    Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('03/03/2024', 'seven days')");
    Run("INSERT INTO Alerts (Description) VALUES ('no day')");
    EXPECT_EQ(Texts(), (Lines{"six days", "seven days", "no day"}));
    EXPECT_EQ(Texts(), Lines{"six days"});
    core::Preferences().KeepDays = 0;
    EXPECT_EQ(Texts(), Lines{"six days"});
    EXPECT_TRUE(Texts().empty());
}

TEST_F(HomePage, DeletesMessagesWhoseDateIsBlankOrInvalidAndStillTheOldOnes) {
    Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('', 'blank')");
    Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('soon', 'invalid')");
    Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('01/01/2024', 'old')");
    Run("INSERT INTO Alerts (EntryDate, Description) VALUES ('03/10/2024', 'new')");
    EXPECT_EQ(Texts().size(), 4U);
    EXPECT_EQ(Texts(), Lines{"new"});
}

TEST_F(HomePage, NamesTheRecordWhoseDateStopsIt) {
    Run("INSERT INTO Mortgage (IdMortgage, AccountNumber, LastEscrowReview) "
        "VALUES (5, 'A-1', 'soon')");
    try {
        alerts::GetAlerts();
        FAIL();
    } catch (const platform::Error& failure) {
        EXPECT_TRUE(std::string(failure.what()).starts_with("Mortgage account # A-1: "))
            << failure.what();
    }
}

TEST_F(HomePage, MarksASumThatCannotBeMade) {
    Run("INSERT INTO Transactions (DateEffective, Amount, IEN) VALUES ('soon', 1, 0)");
    int faults = 0;
    for (const auto& group : alerts::GetPortfolioSummary()) {
        for (const auto& item : group.items) {
            if (!item.fault.empty()) ++faults;
            EXPECT_EQ(item.fault.empty(), !item.name.starts_with("Income")) << item.fault;
        }
    }
    EXPECT_EQ(faults, 2);
}

TEST_F(HomePage, SumsUpThePortfolio) {
    for (const char* row : {"'03/01/2024', 100.10, 0", "'02/29/2024', 20, 0", "'12/31/2023', 7, 0",
                            "'03/09/2024', 30, 1", "'03/09/2024', 5, 2"}) {
        Run(std::string("INSERT INTO Transactions (DateEffective, Amount, IEN) VALUES (") + row +
            ")");
    }
    Run("INSERT INTO RentLog (Class, IdTransaction, Amount) VALUES (1, 0, 50)");
    Run("INSERT INTO RentLog (Class, IdTransaction, Amount) VALUES (1, 9, 70)");
    Run("INSERT INTO RentLog (Class, IdTransaction, Amount) VALUES (4, 9, 3)");
    Run("INSERT INTO Mortgage (CurrentPV) VALUES (1000.5)");
    std::vector<std::string> totals;
    for (const auto& group : alerts::GetPortfolioSummary()) {
        for (const auto& item : group.items) {
            totals.push_back(std::string(item.name) + " " + platform::FormatMoney(item.total));
        }
    }
    const Lines expected = {
        "Income - Month to Date 100.10",
        "Income - Year to Date 120.10",
        "Expenses - Month to Date 30.00",
        "Expenses - Year to Date 30.00",
        "Total Rent Due 50.00",
        "Total Rent Subsidy Due 0.00",
        "Lease Option Credits 3.00",
        "Total Deposits Held 0.00",
        "Total Mortgage Balances 1,000.50",
        "Mortgage Payments Due 0.00",
        "Total Market Value 0.00",
        "Total Equity 0.00",
    };
    EXPECT_EQ(totals, expected);
}

TEST_F(HomePage, KeepsTheNotesBesideTheDatabase) {
    EXPECT_EQ(alerts::LoadNotes(), "");
    alerts::SaveNotes("call the plumber\n\xC3\xA9");
    EXPECT_EQ(alerts::LoadNotes(), "call the plumber\n\xC3\xA9");
    core::App().DbPath = (folder_ / "nowhere").string();
    EXPECT_THROW(alerts::SaveNotes("lost?"), platform::Error);
}

} // namespace

} // namespace tests
