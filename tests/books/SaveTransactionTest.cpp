#include "books/SaveTransaction.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "books/BooksFixture.h"
#include "books/TransactionRules.h"
#include "core/NotifyAll.h"
#include "core/Preferences.h"
#include "support/ScriptedDialogs.h"

namespace {

using books::Trip;

class SaveTransaction : public tests::BooksTest {
  protected:
    static std::string Trips() {
        return Rows(
            "SELECT IdMileage, EntryDate, Vehicle, OBegin, OEnd, Mileage, Destination, "
            "Purpose, Meal, IdBuilding, IdWorkOrder, idUser, Selected FROM Mileage");
    }
    static std::string TripOf(int id) {
        return Ask("SELECT IdMileage FROM Transactions WHERE IdTransaction = " +
                   std::to_string(id));
    }
};

TEST_F(SaveTransaction, OfANewRowTriggersEventsAndOfAnOldOneNone) {
    AddTriggered(101, 1, 60, "Rent Payment");
    EXPECT_EQ(books::AddTransaction(Payment(), Trip::None), 1000);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2");
    books::Transaction edited = Payment();
    edited.amount = platform::Currency::FromUnits(-1);
    edited.transactionClass = 3;
    edited.flags = 4;
    books::EditTransaction(1000, edited, Payment(), Trip::None);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2");
    EXPECT_EQ(Rows("SELECT Amount, Class, Flags FROM Transactions WHERE IdTransaction = 1000"),
              "-1|3|4;");
}

TEST_F(SaveTransaction, KeepsWhatTheEditorDoesNotShow) {
    books::AddTransaction(Payment(), Trip::None);
    Run("UPDATE Transactions SET Reconciled = True, DebitExported = True, IdLedger = 3");
    books::EditTransaction(1000, Payment(), Payment(), Trip::None);
    EXPECT_EQ(Rows("SELECT Reconciled, DebitExported, CreditExported, IdLedger FROM Transactions"),
              "True|True|False|3;");
}

TEST_F(SaveTransaction, WritesOnlyWhatWasChanged) {
    // Nulls, a name of long ago and an unknown class: nothing of it is what an editor would show.
    Run("INSERT INTO Transactions (IdTransaction, DateEffective, DebitType, DebitId, DebitDesc, "
        "Amount, IdLease, IEN) VALUES (900, '5/1/2024', 5, 30, 'Old Name', 12, 40, 7)");
    books::EditTransaction(900, Payment(), Payment(), Trip::None);
    const auto row = [] {
        return Rows(
            "SELECT DateEffective, DebitDesc, CreditType, CheckNum, Amount, IdTenant, "
            "IdLease, IEN, Class, Flags FROM Transactions");
    };
    EXPECT_EQ(row(), "5/1/2024|Old Name|NULL|NULL|12|0|40|7|NULL|NULL;");
    books::Transaction edited = Payment();
    edited.amount = platform::Currency::FromUnits(13);
    edited.credit.id = 61;
    books::EditTransaction(900, edited, Payment(), Trip::None);
    EXPECT_EQ(row(), "5/1/2024|Old Name|NULL|NULL|13|0|40|7|NULL|NULL;");
    EXPECT_EQ(Rows("SELECT CreditId, CreditDesc FROM Transactions"), "61|NULL;");
}

TEST_F(SaveTransaction, RefreshesTheListsOfTripsAndEvents) {
    AddTriggered(101, 1, 60, "Rent Payment");
    std::string refreshed;
    const core::NotifyToken token([&](std::int16_t kind, std::int16_t, std::int32_t) {
        EXPECT_FALSE(core::App().Connection.InUnitOfWork());
        refreshed += std::to_string(kind) + " ";
    });
    core::Preferences().ConfirmDelete = false;
    const auto refreshedBy = [&](const std::function<void()>& work) {
        refreshed.clear();
        work();
        return refreshed;
    };
    EXPECT_EQ(refreshedBy([] { books::AddTransaction(Payment(), Trip::Keep); }), "10 19 12 ")
        << "the event posts a transaction";
    EXPECT_EQ(refreshedBy([] { books::EditTransaction(1000, Payment(), Payment(), Trip::Keep); }),
              "12 ");
    EXPECT_EQ(refreshedBy([] { books::EditTransaction(1000, Payment(), Payment(), Trip::None); }),
              "12 ");
    EXPECT_EQ(refreshedBy([] { books::EditTransaction(1000, Payment(), Payment(), Trip::None); }),
              "");
    EXPECT_EQ(refreshedBy([] { books::PostTransaction(Payment()); }), "19 10 ");
}

TEST(DoubtAboutATransaction, IsASideWithoutANameOrTwiceTheSameParty) {
    const auto doubt = [](books::Party from, books::Party to) {
        books::Transaction transaction;
        transaction.debit = std::move(from);
        transaction.credit = std::move(to);
        const std::string text = books::DoubtAbout(transaction);
        return text.substr(0, text.find('.'));
    };
    EXPECT_EQ(doubt({1, 60, "Bank"}, {1, 61, "Bank"}), "");
    EXPECT_EQ(doubt({1, 60, "Bank"}, {5, 60, "Bank"}), "");
    EXPECT_EQ(doubt({1, 0, "Plumber"}, {1, 0, "Painter"}), "");
    EXPECT_EQ(doubt({1, 60, "Bank"}, {1, 60, "River Bank"}),
              "From and To are the same: Bank would pay the money to itself");
    EXPECT_EQ(doubt({1, 0, "plumber "}, {1, 0, "Plumber"}),
              "From and To are the same: plumber  would pay the money to itself");
    EXPECT_EQ(doubt({1, 0, " "}, {1, 60, "Bank"}),
              "From is empty: the transaction doesn't say who pays");
    EXPECT_EQ(doubt({5, 30, ""}, {1, 0, ""}),
              "To is empty: the transaction doesn't say who is paid");
    EXPECT_EQ(doubt({1, 0, ""}, {1, 0, ""}), "From and To are both empty");
}

TEST_F(SaveTransaction, BringsARowThatHasGoneBackWithoutTriggers) {
    AddTriggered(101, 1, 60, "Rent Payment");
    books::EditTransaction(77, Payment(), Payment(), Trip::None);
    EXPECT_EQ(Rows("SELECT IdTransaction, Description, DebitExported FROM Transactions"),
              "77|May|False;");
}

TEST_F(SaveTransaction, MakesATripThereAndBackFromTheHighestReading) {
    Run("INSERT INTO Users (IdUser, UserName) VALUES (5, 'Administrator')");
    Run("INSERT INTO Mileage (IdMileage, Vehicle, OEnd) VALUES (1, 'Van', 1200.5)");
    Run("INSERT INTO Mileage (IdMileage, Vehicle, OEnd) VALUES (2, 'Car', 9000)");
    books::AddTransaction(Payment(), Trip::Keep);
    EXPECT_EQ(Trips().substr(Trips().find("1001|")),
              "1001|05/01/2024|Van|1200.5|1215.5|15|River Bank|Rent Payment|0|10|0|5|False;");
    EXPECT_EQ(TripOf(1000), "1001");

    books::EditTransaction(1000, Payment(), Payment(), Trip::Keep);
    EXPECT_EQ(Rows("SELECT OBegin, OEnd FROM Mileage WHERE IdMileage = 1001"), "1215.5|1230.5;")
        << "the trip itself is the car's latest";

    Run("DELETE * FROM Mileage");
    books::EditTransaction(1000, Payment(), Payment(), Trip::Keep);
    EXPECT_EQ(Rows("SELECT IdMileage, OBegin FROM Mileage"), "1001|0;");
}

TEST_F(SaveTransaction, MakesATripOfNoMilesToNowhere) {
    Run("UPDATE Configuration SET DefaultCar = NULL");
    books::Transaction plain = Payment();
    plain.idBuilding = 0;
    books::AddTransaction(plain, Trip::Keep);
    EXPECT_EQ(Trips(), "1001|05/01/2024||0|0|0|River Bank|Rent Payment|0|0|0|0|False;");
}

TEST_F(SaveTransaction, ForgetsItsTripWhateverThePersonSays) {
    struct Case {
        bool asks;
        std::deque<bool> answers;
        const char* trips;
        std::size_t asked;
    };
    for (const auto& [asks, answers, trips, asked] :
         {Case{true, {true}, "0", 1}, Case{true, {false}, "1", 1}, Case{false, {}, "0", 0}}) {
        Run("DELETE * FROM Mileage");
        core::Preferences().ConfirmDelete = asks;
        const std::int32_t id = books::AddTransaction(Payment(), Trip::Keep);
        const support::ScriptedDialogs person(answers);
        books::EditTransaction(id, Payment(), Payment(), Trip::None);
        EXPECT_EQ(Ask("SELECT Count(*) FROM Mileage"), trips);
        EXPECT_EQ(TripOf(id), "0");
        ASSERT_EQ(person.Heard().size(), asked);
        for (const support::Prompt& question : person.Heard())
            EXPECT_EQ(question.text, "Delete selected Mileage entry?");
        books::EditTransaction(id, Payment(), Payment(), Trip::None);
        EXPECT_EQ(person.Heard().size(), asked) << "asked once";
    }
}

TEST_F(SaveTransaction, ThatFailsLeavesEverythingAsItWas) {
    books::AddTransaction(Payment(), Trip::Keep);
    const std::string before = Trips() + Rows("SELECT * FROM Transactions");
    core::App().Connection.RunScript(
        "CREATE TRIGGER full BEFORE UPDATE ON Transactions "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
    books::Transaction edited = Payment();
    edited.description = "June";
    core::Preferences().ConfirmDelete = false;
    for (const Trip trip : {Trip::Keep, Trip::None}) {
        EXPECT_THROW(books::EditTransaction(1000, edited, Payment(), trip),
                     platform::DatabaseError);
        EXPECT_EQ(Trips() + Rows("SELECT * FROM Transactions"), before);
    }
}

} // namespace
