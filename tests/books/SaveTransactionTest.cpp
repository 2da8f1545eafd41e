#include "books/SaveTransaction.h"

#include <gtest/gtest.h>

#include <deque>

#include "books/BooksFixture.h"
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
    EXPECT_EQ(books::SaveTransaction(0, Payment(), Trip::None), 1000);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2");
    books::Transaction edited = Payment();
    edited.amount = platform::Currency::FromUnits(-1);
    edited.transactionClass = 3;
    edited.flags = 4;
    EXPECT_EQ(books::SaveTransaction(1000, edited, Trip::None), 1000);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Transactions"), "2");
    EXPECT_EQ(Rows("SELECT Amount, Class, Flags FROM Transactions WHERE IdTransaction = 1000"),
              "-1|3|4;");
}

TEST_F(SaveTransaction, KeepsWhatTheEditorDoesNotShow) {
    books::SaveTransaction(0, Payment(), Trip::None);
    Run("UPDATE Transactions SET Reconciled = True, DebitExported = True, IdLedger = 3");
    books::SaveTransaction(1000, Payment(), Trip::None);
    EXPECT_EQ(Rows("SELECT Reconciled, DebitExported, CreditExported, IdLedger FROM Transactions"),
              "True|True|False|3;");
}

TEST_F(SaveTransaction, BringsARowThatHasGoneBackWithoutTriggers) {
    AddTriggered(101, 1, 60, "Rent Payment");
    EXPECT_EQ(books::SaveTransaction(77, Payment(), Trip::None), 77);
    EXPECT_EQ(Rows("SELECT IdTransaction, Description, DebitExported FROM Transactions"),
              "77|May|False;");
}

TEST_F(SaveTransaction, MakesATripThereAndBackFromTheHighestReading) {
    Run("INSERT INTO Users (IdUser, UserName) VALUES (5, 'Administrator')");
    Run("INSERT INTO Mileage (IdMileage, Vehicle, OEnd) VALUES (1, 'Van', 1200.5)");
    Run("INSERT INTO Mileage (IdMileage, Vehicle, OEnd) VALUES (2, 'Car', 9000)");
    books::SaveTransaction(0, Payment(), Trip::Keep);
    EXPECT_EQ(Trips().substr(Trips().find("1001|")),
              "1001|05/01/2024|Van|1200.5|1215.5|15|River Bank|Rent Payment|0|10|0|5|False;");
    EXPECT_EQ(TripOf(1000), "1001");

    books::SaveTransaction(1000, Payment(), Trip::Keep);
    EXPECT_EQ(Rows("SELECT OBegin, OEnd FROM Mileage WHERE IdMileage = 1001"), "1215.5|1230.5;")
        << "the trip itself is the car's latest";

    Run("DELETE * FROM Mileage");
    books::SaveTransaction(1000, Payment(), Trip::Keep);
    EXPECT_EQ(Rows("SELECT IdMileage, OBegin FROM Mileage"), "1001|0;");
}

TEST_F(SaveTransaction, MakesATripOfNoMilesToNowhere) {
    Run("UPDATE Configuration SET DefaultCar = NULL");
    books::Transaction plain = Payment();
    plain.idBuilding = 0;
    books::SaveTransaction(0, plain, Trip::Keep);
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
        const std::int32_t id = books::SaveTransaction(0, Payment(), Trip::Keep);
        const support::ScriptedDialogs person(answers);
        books::SaveTransaction(id, Payment(), Trip::None);
        EXPECT_EQ(Ask("SELECT Count(*) FROM Mileage"), trips);
        EXPECT_EQ(TripOf(id), "0");
        ASSERT_EQ(person.Heard().size(), asked);
        for (const support::Said& question : person.Heard())
            EXPECT_EQ(question.text, "Delete selected Mileage entry?");
        books::SaveTransaction(id, Payment(), Trip::None);
        EXPECT_EQ(person.Heard().size(), asked) << "asked once";
    }
}

TEST_F(SaveTransaction, ThatFailsLeavesEverythingAsItWas) {
    books::SaveTransaction(0, Payment(), Trip::Keep);
    const std::string before = Trips() + Rows("SELECT * FROM Transactions");
    core::App().Connection.RunScript(
        "CREATE TRIGGER full BEFORE UPDATE ON Transactions "
        "BEGIN SELECT RAISE(ABORT, 'no room'); END");
    books::Transaction edited = Payment();
    edited.description = "June";
    core::Preferences().ConfirmDelete = false;
    for (const Trip trip : {Trip::Keep, Trip::None}) {
        EXPECT_THROW(books::SaveTransaction(1000, edited, trip), platform::DatabaseError);
        EXPECT_EQ(Trips() + Rows("SELECT * FROM Transactions"), before);
    }
}

} // namespace
