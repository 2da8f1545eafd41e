#include "books/PostTransaction.h"

#include <gtest/gtest.h>

#include "books/BooksFixture.h"
#include "books/TransactionListeners.h"
#include "core/NotifyAll.h"

namespace {

class PostTransaction : public tests::BooksTest {
  protected:
    static std::string Posted() {
        return Rows("SELECT Description, DateEffective FROM Transactions ORDER BY IdTransaction");
    }
};

TEST_F(PostTransaction, WritesTheRowAndTellsWhenItIsKept) {
    std::string told;
    const core::NotifyToken token([&](std::int16_t kind, std::int16_t, std::int32_t) {
        told += std::to_string(kind) + (core::App().Connection.InUnitOfWork() ? "?" : "");
    });
    EXPECT_EQ(books::PostTransaction(Payment()), 1000);
    EXPECT_EQ(told, "10");
    EXPECT_EQ(Rows("SELECT * FROM Transactions"),
              "1000|05/01/2024|5|1|30|60|Smith, John Q|River Bank|0|0|0|0|False|False|950|17|"
              "Rent Payment|0|0|0|May|False|30|10|20|40|0|0|0|0;");
    {
        const platform::UnitOfWork larger(core::App().Connection);
        books::PostTransaction(Payment());
    }
    EXPECT_EQ(told, "10") << "a part of larger work is announced by that work";
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "1");
}

TEST_F(PostTransaction, TriggersTheEventsOfItsDebitSideThenThoseOfItsCreditSide) {
    AddTriggered(101, 1, 60, "Rent Payment");
    AddTriggered(102, 5, 30, "Rent Payment");
    AddTriggered(103, 5, 30, " RENT payment ");
    AddTriggered(104, 1, 60, "Rent");
    AddTriggered(105, 5, 60, "Rent Payment");
    AddTriggered(106, 1, 30, "Rent Payment");
    AddTriggered(107, 1, 60, "");
    AddTriggered(108, 1, 60, "Rent Payment");
    Run("UPDATE AutoEvent SET Enabled = False WHERE IdAutoEvent = 108");
    AddScheduled(109, 1, 1, "");
    books::PostTransaction(Payment());
    EXPECT_EQ(Posted(),
              "May|05/01/2024;Event 102|05/17/2024;Event 103|05/17/2024;"
              "Event 101|05/17/2024;")
        << "dated today, whatever the day of the transaction";
    EXPECT_EQ(Rows("SELECT IdAutoEvent FROM AutoEvent WHERE LastRun = '05/17/2024'"),
              "101;102;103;");
}

TEST_F(PostTransaction, TriggersAnEventOfBothSidesTwice) {
    AddTriggered(101, 1, 60, "Rent Payment");
    books::Transaction transfer = Payment();
    transfer.debit = transfer.credit;
    transfer.taxCategory = "  rent payment";
    books::PostTransaction(transfer);
    EXPECT_EQ(Posted(), "May|05/01/2024;Event 101|05/17/2024;Event 101|05/17/2024;");
}

TEST_F(PostTransaction, WithoutACategoryTriggersWhatWaitsForNone) {
    AddTriggered(101, 1, 60, "");
    AddTriggered(102, 1, 60, "NULL");
    AddTriggered(103, 1, 60, "Rent Payment");
    books::Transaction plain = Payment();
    plain.taxCategory = "";
    books::PostTransaction(plain);
    EXPECT_EQ(Posted(), "May|05/01/2024;Event 101|05/17/2024;Event 102|05/17/2024;");
}

TEST_F(PostTransaction, StartsNoChain) {
    // What 101 posts is what 102 waits for, and the other way round.
    AddTriggered(101, 1, 60, "Rent Payment");
    AddTriggered(102, 1, 60, "Supplies");
    AddTriggered(103, 1, 62, "Supplies");
    books::PostTransaction(Payment());
    EXPECT_EQ(Posted(), "May|05/01/2024;Event 101|05/17/2024;");
    books::PostTransaction(Payment(), books::Triggers::Skip);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "3");
}

TEST_F(PostTransaction, TwoKindsOfEventsOnOneAccountRunEachInTheirOwnWay) {
    AddTriggered(101, 1, 60, "Rent Payment");
    AddScheduled(102, 3, 1, "05/01/2024");
    books::PostTransaction(Payment());
    EXPECT_EQ(Rows("SELECT IdAutoEvent, LastRun FROM AutoEvent"), "101|05/17/2024;102|05/01/2024;");
}

TEST_F(PostTransaction, IsKeptWhenAnEventFailsWhichIsTold) {
    AddTriggered(101, 1, 60, "Rent Payment");
    AddTriggered(102, 1, 60, "Rent Payment");
    core::App().Connection.RunScript(
        "CREATE TRIGGER full BEFORE UPDATE ON AutoEvent "
        "WHEN NEW.IdAutoEvent = 101 "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
    books::PostTransaction(Payment());
    EXPECT_EQ(Posted(), "May|05/01/2024;Event 102|05/17/2024;");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Alerts"), "1");
    EXPECT_EQ(Ask("SELECT Left(Description, 27) FROM Alerts"), "Auto Event Failed: Event 10");
}

TEST_F(PostTransaction, IsNothingAtAllWhenItFails) {
    AddTriggered(101, 1, 60, "Rent Payment");
    core::App().Connection.RunScript(
        "CREATE TRIGGER full BEFORE INSERT ON Transactions "
        "WHEN NEW.CheckNum = '17' "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
    EXPECT_THROW(books::PostTransaction(Payment()), platform::DatabaseError);
    EXPECT_EQ(Posted(), "");
    EXPECT_EQ(Ask("SELECT LastRun FROM AutoEvent"), "NULL");
    EXPECT_EQ(Ask("SELECT NextId FROM Configuration"), "1000");
}

TEST_F(PostTransaction, TellsWhoAskedWithTheRowWritten) {
    static std::string told;
    static bool refuses = false;
    books::RegisterTransactionListener([](std::int32_t id, const books::Transaction& posted) {
        told += std::to_string(id) + " " + posted.description + " " +
                Ask("SELECT Count(*) FROM Transactions") + ";";
        if (refuses) throw platform::Error("no");
    });
    AddTriggered(101, 1, 60, "Rent Payment");
    books::PostTransaction(Payment());
    EXPECT_EQ(told, "1001 Event 101 1;1000 May 2;");
    refuses = true;
    EXPECT_THROW(books::PostTransaction(Payment(), books::Triggers::Skip), platform::Error);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2") << "it stands or falls with the row";
    refuses = false;
}

} // namespace
