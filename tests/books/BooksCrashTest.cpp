#include <gtest/gtest.h>

#include "books/BooksFixture.h"
#include "books/SaveTransaction.h"
#include "books/ScheduledEvents.h"
#include "core/Preferences.h"
#include "core/RunHeard.h"
#include "support/Crashes.h"

namespace {

using support::Crashes;

class BooksCrash : public tests::BooksTest {
  protected:
    static void ExpectWhole(const Crashes& crashes, int atLeast) {
        EXPECT_EQ(crashes.faults, std::vector<std::string>{});
        EXPECT_GE(crashes.statements, atLeast);
        EXPECT_EQ(crashes.asBefore + crashes.asAfter, crashes.statements);
    }
};

TEST_F(BooksCrash, APostingWithItsEventsIsNeverHalf) {
    AddTriggered(101, 1, 60, "Rent Payment");
    AddTriggered(102, 5, 30, "Rent Payment");
    Run("UPDATE AutoEvent SET Alert = True");
    ExpectWhole(support::CrashAtEveryStatement([] { books::PostTransaction(Payment()); }), 12);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "3");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Alerts"), "2");
}

TEST_F(BooksCrash, ASaveWithItsTripIsNeverHalf) {
    const std::int32_t id = books::AddTransaction(Payment(), books::Trip::None);
    ExpectWhole(support::CrashAtEveryStatement(
                    [&] { books::EditTransaction(id, Payment(), Payment(), books::Trip::Keep); }),
                5);
    core::Preferences().ConfirmDelete = false;
    ExpectWhole(support::CrashAtEveryStatement(
                    [&] { books::EditTransaction(id, Payment(), Payment(), books::Trip::None); }),
                5);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Mileage"), "0");
}

TEST_F(BooksCrash, APassOfTheEventsIsNeverHalf) {
    AddScheduled(101, 3, 1, "04/17/2024");
    AddScheduled(102, 2, 1, "05/10/2024");
    Run("UPDATE AutoEvent SET Alert = True");
    ExpectWhole(support::CrashAtEveryStatement([] {
                    tests::RunHeard heard;
                    books::ScheduledEvents(heard).RunScheduledEvents();
                }),
                12);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2");
}

} // namespace
