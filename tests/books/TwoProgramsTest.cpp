#include <gtest/gtest.h>

#include "books/AutoEvent.h"
#include "books/BooksFixture.h"
#include "books/SaveTransaction.h"
#include "books/ScheduledEvents.h"
#include "core/Preferences.h"
#include "core/RunHeard.h"
#include "support/Rival.h"

namespace {

using platform::Date;
using support::Rival;

class TwoProgramsOnTheBooks : public tests::BooksTest {
  protected:
    static std::size_t RunAll() {
        tests::RunHeard heard;
        books::RunDueEvents(heard);
        EXPECT_EQ(heard.failed, std::vector<std::string>());
        return heard.posted.size();
    }
};

TEST_F(TwoProgramsOnTheBooks, PostAnEventOnce) {
    AddScheduled(7, 3, 1, "02/10/2024");
    AddScheduled(8, 1, 30, "");
    Run("UPDATE AutoEvent SET Alert = True");
    const Rival other([] { RunAll(); });
    EXPECT_EQ(RunAll(), 0U) << "the other program has posted it all";
    EXPECT_TRUE(other.HasWorked());
    EXPECT_EQ(Rows("SELECT DateEffective, Description FROM Transactions ORDER BY IdTransaction"),
              "03/10/2024|Event 7;05/17/2024|Event 8;04/10/2024|Event 7;05/10/2024|Event 7;");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Alerts"), "4");
}

TEST_F(TwoProgramsOnTheBooks, EditFieldsOfOneTransactionSideBySide) {
    const std::int32_t id = books::AddTransaction(Payment(), books::Trip::None);
    const Rival other([id] {
        books::Transaction edited = Payment();
        edited.description = "June";
        edited.amount = platform::Currency::FromUnits(7);
        books::EditTransaction(id, edited, Payment(), books::Trip::Keep);
    });
    books::Transaction edited = Payment();
    edited.checkNumber = "18";
    edited.amount = platform::Currency::FromUnits(8);
    books::EditTransaction(id, edited, Payment(), books::Trip::Keep);
    EXPECT_TRUE(other.HasWorked());
    EXPECT_EQ(Rows("SELECT Description, Amount, CheckNum FROM Transactions"), "June|8|18;");
    EXPECT_EQ(Rows("SELECT Count(*) FROM Mileage"), "1;") << "one trip, written twice";
}

TEST_F(TwoProgramsOnTheBooks, RunAnEventAsItIsWhenItRuns) {
    AddScheduled(7, 3, 1, "04/10/2024");
    const Rival other([] { Run("UPDATE AutoEvent SET Enabled = False, Amount = 9"); });
    EXPECT_EQ(RunAll(), 0U);
    const Rival deleting([] { Run("DELETE * FROM AutoEvent"); });
    books::RunAutoEvent(7, Date(2024, 5, 10));
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "0");
}

} // namespace
