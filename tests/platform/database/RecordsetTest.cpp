#include "DatabaseFixture.h"

namespace platform {

namespace {

class RecordsetTest : public DatabaseFixture {};

TEST_F(RecordsetTest, WalksOverItsRows) {
    for (int id = 1; id <= 3; ++id)
        AddPerson(id, "x");
    Recordset rows;
    rows.Open(connection_, "SELECT Id FROM Person ORDER BY Id");
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(Column(rows, "Id"), "1 2 3 ");
    EXPECT_EQ(rows.AbsolutePosition(), 0);
    rows.MoveNext();
    EXPECT_TRUE(rows.Eof());
    rows.MoveFirst();
    EXPECT_EQ(rows.AbsolutePosition(), 1);

    struct {
        std::int64_t wanted, got;
    } const cases[] = {{3, 3}, {1, 1}, {2, 2}, {0, 0}, {4, 0}, {-1, 0}};
    for (const auto& [wanted, got] : cases) {
        rows.SetAbsolutePosition(wanted);
        EXPECT_EQ(rows.AbsolutePosition(), got) << wanted;
        EXPECT_EQ(rows.Eof(), got == 0) << wanted;
        if (got != 0) {
            EXPECT_EQ(rows["Id"].AsLong(), got);
        }
    }
}

TEST_F(RecordsetTest, WithoutRowsStandsAtItsEnd) {
    Recordset rows;
    rows.Open(connection_, "SELECT * FROM Person WHERE Id = ?", CursorMode::Updatable, {9});
    EXPECT_EQ(rows.RecordCount(), 0);
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ(rows.AbsolutePosition(), 0);
    EXPECT_EQ(ErrorOf([&] { rows["Name"].AsText(); }), "Field Name: there is no current row.");
    EXPECT_THROW(rows["Name"].Set("x"), FieldError);
    EXPECT_THROW(rows.Delete(), DatabaseError);
}

TEST_F(RecordsetTest, OpensATableByItsBareName) {
    AddPerson(1, "Ann");
    for (const char* name : {"Person", "PERSON", "[Person]", " person "}) {
        Recordset rows;
        rows.Open(connection_, name);
        EXPECT_EQ(rows.FieldCount(), 7) << name;
        EXPECT_EQ(rows["Name"].AsText(), "Ann") << name;
    }
    Recordset rows;
    EXPECT_THROW(rows.Open(connection_, "Persons"), DialectError);
    EXPECT_THROW(rows.Open(connection_, "DELETE * FROM Person"), DatabaseError);
    EXPECT_FALSE(rows.IsOpen());
    EXPECT_EQ(Single("SELECT Count(*) FROM Person"), "1");
}

TEST_F(RecordsetTest, FieldsAreKnownByNameInAnyCaseAndByNumber) {
    AddPerson(1, "Ann");
    Recordset rows;
    rows.Open(connection_, "SELECT Id, Name AS [Full Name], Balance * 2 AS Größe FROM Person");
    EXPECT_EQ(rows["FULL name"].AsText(), "Ann");
    EXPECT_EQ(rows["grÖße"].Name(), "Größe");
    EXPECT_EQ(rows[1].Name(), "Full Name");
    EXPECT_EQ(rows[2].Type(), FieldType::Currency);
    EXPECT_TRUE(rows.HasField("iD"));
    EXPECT_FALSE(rows.HasField("Name"));
    EXPECT_EQ(ErrorOf([&] { rows["Name"]; }), "There is no field Name.");
    EXPECT_THROW(rows[3], FieldError);
    // In the next statement they are elsewhere, and the first of a name counts.
    rows.Open(connection_,
              "SELECT Balance AS [Full Name], Id AS Größe, Name AS [Full Name], Id "
              "AS [full name] FROM Person");
    EXPECT_EQ(rows["FULL name"].Type(), FieldType::Currency);
    EXPECT_EQ(rows["full name"].Type(), FieldType::Currency);
    EXPECT_EQ(rows["grÖße"].AsLong(), 1);
    EXPECT_FALSE(rows.HasField("Id"));
    EXPECT_FALSE(rows.HasField(""));
}

TEST_F(RecordsetTest, AFieldSpeaksOfTheRowThatIsCurrent) {
    AddPerson(1, "Ann");
    AddPerson(2, Value());
    AddPerson(3, "");
    Recordset rows;
    rows.Open(connection_, "SELECT * FROM Person ORDER BY Id");
    const Field name = rows["Name"];
    EXPECT_FALSE(name.IsBlank());
    EXPECT_EQ(name.AsText(), "Ann");
    rows.MoveNext();
    EXPECT_TRUE(name.IsNull());
    EXPECT_TRUE(name.IsBlank());
    EXPECT_TRUE(ErrorOf([&] { name.AsText(); }).starts_with("Field Name: "));
    EXPECT_TRUE(ErrorOf([&] { rows["Balance"].AsCurrency(); }).starts_with("Field Balance: "));
    rows.MoveNext();
    EXPECT_FALSE(name.IsNull());
    EXPECT_TRUE(name.IsBlank());
}

// The contents of a file that another tool wrote, field by field.
TEST_F(RecordsetTest, ReadsValuesThatAreStoredInAnotherForm) {
    connection_.RunScript(
        "INSERT INTO Person (Id, Name, Age, Weight, Balance, Active) "
        "VALUES (5e9, 8, 40000, 3, 10000.5, 2), (2.5, x'41', 'old', 'heavy', 'much', 'maybe')");
    Recordset rows;
    rows.Open(connection_, "SELECT * FROM Person");
    EXPECT_EQ(rows["Id"].Value(), Value(5e9));
    EXPECT_THROW(rows["Id"].AsLong(), FieldError);
    EXPECT_EQ(rows["Name"].Value(), Value("8"));
    EXPECT_EQ(rows["Age"].Value(), Value(std::int32_t{40'000}));
    EXPECT_THROW(rows["Age"].AsInteger(), FieldError);
    EXPECT_EQ(rows["Weight"].Value(), Value(3.0));
    EXPECT_EQ(rows["Balance"].Value(), Value(Currency::FromScaled(10'000)));
    EXPECT_EQ(rows["Active"].Value(), Value(true));
    rows.MoveNext();
    EXPECT_EQ(rows["Id"].Value(), Value(2.5));
    EXPECT_EQ(rows["Id"].AsLong(), 2);
    EXPECT_EQ(rows["Name"].Value(), Value("A"));
    for (const char* field : {"Age", "Weight", "Balance", "Active"})
        EXPECT_THROW(rows[field].AsDouble(), FieldError) << field;
}

TEST_F(RecordsetTest, HoldsMoreRowsThanACountOf16Bits) {
    UnitOfWork unit(connection_);
    for (int id = 1; id <= 40'000; ++id)
        AddPerson(id, "Person " + std::to_string(id));
    unit.Commit();
    Recordset rows;
    rows.Open(connection_, "SELECT Name, Id FROM Person ORDER BY Id");
    ASSERT_EQ(rows.RecordCount(), 40'000);
    rows.SetAbsolutePosition(39'999);
    EXPECT_EQ(rows["Name"].AsText(), "Person 39999");
    std::int64_t sum = 0;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        sum += rows["Id"].AsLong();
    EXPECT_EQ(sum, 40'000LL * 40'001 / 2);
}

TEST_F(RecordsetTest, OneStatementServesSeveralRowSetsAtATime) {
    for (int id = 1; id <= 3; ++id)
        AddPerson(id, "x");
    const std::string_view sql = "SELECT Id FROM Person WHERE Id >= ? ORDER BY Id";
    std::string seen;
    Recordset outer;
    for (outer.Open(connection_, sql, CursorMode::ReadOnly, {1}); !outer.Eof(); outer.MoveNext()) {
        Recordset inner;
        inner.Open(connection_, sql, CursorMode::ReadOnly, {outer["Id"].Value()});
        seen += Column(inner, "Id") + "| ";
    }
    EXPECT_EQ(seen, "1 2 3 | 2 3 | 3 | ");
}

TEST_F(RecordsetTest, AnswersAsOfItsOpeningWhateverHappensBehindIt) {
    AddPerson(1, "Ann");
    Recordset rows;
    rows.Open(connection_, "SELECT * FROM Person");
    connection_.RunScript("DROP TABLE Person");
    for (int i = 0; i < 300; ++i)
        connection_.Scalar("SELECT " + std::to_string(i) + " AS Result");
    EXPECT_EQ(rows["Name"].AsText(), "Ann");
    connection_.Close();
    EXPECT_EQ(rows["Name"].AsText(), "Ann");
    Recordset moved = std::move(rows);
    EXPECT_EQ(moved["Name"].AsText(), "Ann");
}

TEST_F(RecordsetTest, AFailedOpenLeavesItClosed) {
    AddPerson(1, "Ann");
    Recordset rows;
    rows.Open(connection_, "Person");
    EXPECT_THROW(rows.Open(connection_, "SELECT Nonsense FROM Person"), DialectError);
    EXPECT_FALSE(rows.IsOpen());
    EXPECT_THROW(rows.Open(connection_, "SELECT * FROM Person WHERE Id = ?"), DatabaseError);
    EXPECT_FALSE(rows.IsOpen());
    rows.Open(connection_, "Person");
    EXPECT_EQ(rows.RecordCount(), 1);
}

} // namespace

} // namespace platform
