#include <cmath>
#include <cstdint>

#include "DatabaseFixture.h"

namespace platform {

namespace {

class RecordsetEditTest : public DatabaseFixture {
  protected:
    RecordsetEditTest() {
        for (int id = 1; id <= 3; ++id)
            AddPerson(id, "Person " + std::to_string(id));
    }

    void OpenPersons(CursorMode mode = CursorMode::Updatable) {
        rows_.Open(connection_, "SELECT * FROM Person ORDER BY Id", mode);
    }
    std::string Stored(int id, const std::string& field) {
        return Single("SELECT " + field + " FROM Person WHERE Id = " + std::to_string(id));
    }

    Recordset rows_;
};

TEST_F(RecordsetEditTest, WritesEveryTypeAndReadsItBack) {
    struct {
        const char* field;
        Value set, read;
    } const cases[] = {
        {"Id", "  77 ", std::int32_t{77}},
        {"Id", -2147483647 - 1, -2147483647 - 1},
        {"Name", "O'Brien \"the\" [x]; --", "O'Brien \"the\" [x]; --"},
        {"Name", 5.5, "5.5"},
        {"Name", Date(2024, 2, 29), "02/29/2024"},
        {"Name", Date(), Value()},
        {"Name", "", ""},
        {"Remark", "007", "007"},
        {"Remark", std::string(100'000, 'r'), std::string(100'000, 'r')},
        {"Remark", std::string_view("a\0b", 3), std::string_view("a\0b", 3)},
        {"Age", 32'767, std::int16_t{32'767}},
        {"Age", 2.5, std::int16_t{2}},
        {"Weight", 0.1, 0.1},
        {"Weight", 5, 5.0},
        {"Weight", Value(), Value()},
        {"Balance", "(1,234.50)", Currency::FromScaled(-12'345'000)},
        {"Balance", Currency::FromScaled(INT64_MAX), Currency::FromScaled(INT64_MAX)},
        {"Active", -1, true},
        {"Active", "false", false},
    };
    for (const auto& [field, set, read] : cases) {
        rows_.Open(connection_, "Person", CursorMode::Updatable);
        rows_[field].Set(set);
        EXPECT_EQ(rows_[field].Value(), read) << field;
        rows_.Update();
        EXPECT_EQ(rows_[field].Value(), read) << field;
        rows_.Open(connection_, "Person");
        EXPECT_EQ(rows_[field].Value(), read) << field;
        EXPECT_EQ(rows_.RecordCount(), 3);
    }
}

TEST_F(RecordsetEditTest, RefusesWhatTheFieldCannotHoldAndKeepsItsValue) {
    struct {
        const char* field;
        Value set;
    } const cases[] = {
        {"Age", 32'768}, {"Age", -32'769},      {"Age", "old"},       {"Id", 2147483648.0},
        {"Id", ""},      {"Balance", 1e15},     {"Balance", "a lot"}, {"Weight", "heavy"},
        {"Weight", NAN}, {"Active", "perhaps"},
    };
    OpenPersons();
    rows_["Age"].Set(5);
    for (const auto& [field, set] : cases) {
        const Value before = rows_[field].Value();
        const std::string error =
            ErrorOf([this, name = field, value = set] { rows_[name].Set(value); });
        EXPECT_TRUE(error.starts_with(std::string("Field ") + field + ": ")) << error;
        EXPECT_EQ(rows_[field].Value(), before) << field;
    }
    rows_.Update();
    EXPECT_EQ(Stored(1, "Age"), "5");
}

TEST_F(RecordsetEditTest, FailsWhereTheRowWasChangedOrHasGone) {
    OpenPersons();
    connection_.Execute("UPDATE Person SET Name = 'PERSON 1' WHERE Id = 1");
    rows_["Age"].Set(5);
    EXPECT_THROW(rows_.Update(), ConflictError);
    EXPECT_EQ(rows_["Age"].AsInteger(), 5) << "what was set stays";
    EXPECT_THROW(rows_.Delete(), ConflictError);
    EXPECT_EQ(Stored(1, "Age"), "null");

    rows_.MoveNext();
    connection_.Execute("DELETE * FROM Person WHERE Id = 2");
    rows_["Age"].Set(5);
    EXPECT_THROW(rows_.Update(), ConflictError);

    rows_.MoveNext();
    rows_["Age"].Set(5);
    rows_.Update();
    EXPECT_EQ(Stored(3, "Age"), "5");
    EXPECT_EQ(rows_.RecordCount(), 3);
}

TEST_F(RecordsetEditTest, WritesOnlyWhatWasChangedSoThatUnreadFieldsMayDiffer) {
    rows_.Open(connection_, "SELECT Id, Name FROM Person WHERE Id = 1", CursorMode::Updatable);
    connection_.Execute("UPDATE Person SET Age = 44 WHERE Id = 1");
    rows_["Name"].Set("Ann");
    rows_.Update();
    EXPECT_EQ(Stored(1, "Name"), "Ann");
    EXPECT_EQ(Stored(1, "Age"), "44");
    // Set back to what is held: nothing to write, even if the row was deleted.
    rows_["Name"].Set("Bob");
    rows_["Name"].Set("Ann");
    connection_.Execute("DELETE * FROM Person WHERE Id = 1");
    rows_.Update();
}

TEST_F(RecordsetEditTest, ARowCanBeWrittenAgainAndAgain) {
    OpenPersons();
    for (int age = 1; age <= 3; ++age) {
        rows_["Age"].Set(age);
        rows_["Weight"].Set(age * 1.5);
        rows_.Update();
        EXPECT_EQ(Stored(1, "Age"), std::to_string(age));
    }
    rows_.MoveNext();
    rows_.MoveFirst();
    EXPECT_EQ(rows_["Weight"].AsDouble(), 4.5);
}

TEST_F(RecordsetEditTest, TellsTwinRowsApart) {
    connection_.Execute("INSERT INTO Person SELECT * FROM Person WHERE Id = 1");
    rows_.Open(connection_, "SELECT * FROM Person WHERE Id = 1", CursorMode::Updatable);
    ASSERT_EQ(rows_.RecordCount(), 2);
    rows_["Age"].Set(5);
    rows_.Update();
    EXPECT_EQ(Single("SELECT Count(*) FROM Person WHERE Age = 5"), "1");
    rows_.MoveNext();
    rows_.Delete();
    EXPECT_EQ(Single("SELECT Age FROM Person WHERE Id = 1"), "5");
}

TEST_F(RecordsetEditTest, MovingOnDropsWhatWasNotWritten) {
    OpenPersons();
    rows_["Name"].Set("Ann");
    rows_.CancelUpdate();
    EXPECT_EQ(rows_["Name"].AsText(), "Person 1");
    rows_["Name"].Set("Ann");
    rows_.MoveNext();
    EXPECT_EQ(rows_["Name"].AsText(), "Person 2");
    rows_.Update();
    rows_.AddNew();
    rows_.CancelUpdate();
    EXPECT_EQ(rows_["Name"].AsText(), "Person 2");
    EXPECT_EQ(rows_.RecordCount(), 3);
    EXPECT_EQ(Stored(1, "Name"), "Person 1");
}

TEST_F(RecordsetEditTest, ANewRowBelongsToTheRowSetWithTheTablesDefaults) {
    Recordset towns;
    towns.Open(connection_, "SELECT Tax, Name, Id, Tax * 2 AS Double FROM Town",
               CursorMode::Updatable);
    towns.AddNew();
    EXPECT_TRUE(towns["Name"].IsNull());
    EXPECT_FALSE(towns.Eof());
    EXPECT_EQ(towns.AbsolutePosition(), 1);
    EXPECT_EQ(towns.RecordCount(), 0);
    towns["Id"].Set(5);
    EXPECT_THROW(towns["Double"].Set(5), FieldError);
    towns.Update();
    EXPECT_EQ(towns.RecordCount(), 1);
    EXPECT_EQ(towns.AbsolutePosition(), 1);
    EXPECT_EQ(towns["Name"].AsText(), "Nowhere");
    EXPECT_EQ(towns["Tax"].AsCurrency(), Currency::FromScaled(12'500));

    towns["Name"].Set(Value());
    towns.Update();
    EXPECT_EQ(Single("SELECT Name FROM Town WHERE Id = 5"), "null");

    towns.AddNew();
    towns["Name"].Set(Value());
    towns.Update();
    EXPECT_TRUE(towns["Name"].IsNull()) << "a null that was set is not replaced by the default";
    towns.AddNew();
    towns.Update();
    EXPECT_EQ(towns.RecordCount(), 3);
    EXPECT_EQ(Column(towns, "Name"), "- - Nowhere ");
}

TEST_F(RecordsetEditTest, AFailedInsertCanBeSetRight) {
    connection_.RunScript("CREATE UNIQUE INDEX OneId ON Person (Id)");
    OpenPersons(CursorMode::AppendOnly);
    rows_.AddNew();
    rows_["Id"].Set(2);
    EXPECT_THROW(rows_.Update(), DatabaseError);
    rows_["Id"].Set(4);
    rows_.Update();
    EXPECT_EQ(rows_["Id"].AsLong(), 4);
    EXPECT_EQ(rows_.RecordCount(), 1);
    EXPECT_EQ(Single("SELECT Count(*) FROM Person"), "4");
}

TEST_F(RecordsetEditTest, AppendsThousandsOfRowsWithoutFetchingOne) {
    rows_.Open(connection_, "Person", CursorMode::AppendOnly);
    EXPECT_EQ(rows_.RecordCount(), 0);
    EXPECT_TRUE(rows_.Eof());
    UnitOfWork unit(connection_);
    for (int id = 100; id < 5'100; ++id) {
        rows_.AddNew();
        rows_["Id"].Set(id);
        rows_["Name"].Set("x");
        rows_.Update();
    }
    unit.Commit();
    EXPECT_EQ(rows_.RecordCount(), 5'000);
    rows_["Name"].Set("last");
    rows_.Update();
    EXPECT_EQ(Stored(5'099, "Name"), "last");
    EXPECT_EQ(Single("SELECT Count(*) FROM Person WHERE Name = 'x'"), "4999");
}

TEST_F(RecordsetEditTest, DeletesTheCurrentRowAndStandsOnTheNext) {
    OpenPersons();
    rows_.Sort("Id DESC");
    rows_.MoveNext();
    rows_.Delete();
    EXPECT_EQ(rows_["Id"].AsLong(), 1);
    EXPECT_EQ(rows_.AbsolutePosition(), 2);
    rows_.Delete();
    EXPECT_TRUE(rows_.Eof());
    EXPECT_EQ(Single("SELECT Id FROM Person"), "3");
    rows_.AddNew();
    rows_["Id"].Set(9);
    rows_.Update();
    EXPECT_EQ(Column(rows_, "Id"), "3 9 ");
    rows_.Sort("");
    EXPECT_EQ(Column(rows_, "Id"), "3 9 ");
}

TEST_F(RecordsetEditTest, SaysSoWhereRowsCannotBeWritten) {
    struct {
        const char* sql;
        CursorMode mode;
    } const cases[] = {
        {"SELECT * FROM Person", CursorMode::ReadOnly},
        {"SELECT Person.*, Town.Tax FROM Person LEFT JOIN Town ON Person.Id = Town.Id",
         CursorMode::Updatable},
        {"SELECT DISTINCT Name FROM Person", CursorMode::Updatable},
        {"SELECT Name FROM Person UNION SELECT Name FROM Town", CursorMode::Updatable},
        {"SELECT Name, Count(*) AS Times FROM Person GROUP BY Name", CursorMode::Updatable},
    };
    for (const auto& [sql, mode] : cases) {
        rows_.Open(connection_, sql, mode);
        EXPECT_THROW(rows_.AddNew(), DatabaseError) << sql;
        EXPECT_THROW(rows_.Delete(), DatabaseError) << sql;
        rows_[0].Set(5);
        EXPECT_TRUE(ErrorOf([this] { rows_.Update(); }).starts_with("The row")) << sql;
    }
    EXPECT_THROW(
        rows_.Open(connection_, "SELECT DISTINCT Name FROM Person", CursorMode::AppendOnly),
        DatabaseError);
    EXPECT_EQ(Single("SELECT Count(*) FROM Person WHERE Name LIKE 'Person*' AND Id < 4"), "3");
}

TEST_F(RecordsetEditTest, AUnitThatIsTakenBackTakesUpdatesWithIt) {
    OpenPersons();
    {
        UnitOfWork unit(connection_);
        rows_["Name"].Set("Ann");
        rows_.Update();
    }
    EXPECT_EQ(Stored(1, "Name"), "Person 1");
    rows_["Name"].Set("Bob");
    EXPECT_THROW(rows_.Update(), ConflictError) << "the row set still shows what was rolled back";
}

} // namespace

} // namespace platform
