#include "DatabaseFixture.h"

namespace platform {

namespace {

constexpr int kRows = kFirstRowsRead + 700;

class ReadAsNeeded : public DatabaseFixture {
  protected:
    ReadAsNeeded() {
        UnitOfWork work(connection_);
        for (int id = 1; id <= kRows; ++id)
            AddPerson(id, "old");
        work.Commit();
        rows_.Open(connection_, "SELECT Id, Name FROM Person", CursorMode::ReadAsNeeded);
    }

    /// Of all rows by their places: the names that aren't "old" and the places whose number isn't
    /// the row's.
    std::string Changed() {
        std::string changed;
        for (int place = 1; place <= rows_.RecordCount(); ++place) {
            rows_.SetAbsolutePosition(place);
            if (rows_["Id"].AsLong() != place) changed += std::to_string(place) + " ";
            if (rows_["Name"].AsText() != "old") changed += rows_["Name"].AsText() + " ";
        }
        return changed;
    }

    Recordset rows_;
};

TEST_F(ReadAsNeeded, KnowsAllItsRowsFromTheStart) {
    EXPECT_EQ(rows_.RecordCount(), kRows);
    rows_.SetAbsolutePosition(kRows);
    EXPECT_EQ(rows_["Id"].AsLong(), kRows) << "the last one first";
    rows_.MoveNext();
    EXPECT_TRUE(rows_.Eof());
    EXPECT_EQ(Changed(), "");
    rows_.Sort("Id DESC");
    EXPECT_EQ(rows_["Id"].AsLong(), kRows);
    EXPECT_EQ(rows_.RecordCount(), kRows);
    EXPECT_THROW(rows_.AddNew(), DatabaseError);
}

TEST_F(ReadAsNeeded, ShowsTheRowsAsTheyWereWhateverIsWritten) {
    connection_.Execute("UPDATE Person SET Name = 'new'");
    connection_.Execute("DELETE * FROM Person WHERE Id > 5");
    AddPerson(kRows + 1, "late");
    EXPECT_EQ(rows_.RecordCount(), kRows);
    EXPECT_EQ(Changed(), "");
}

TEST_F(ReadAsNeeded, OutlivesAUnitOfWorkThatIsTakenBack) {
    Recordset inside;
    {
        const UnitOfWork work(connection_);
        connection_.Execute("UPDATE Person SET Name = 'new'");
        inside.Open(connection_, "SELECT Id, Name FROM Person", CursorMode::ReadAsNeeded);
    }
    EXPECT_EQ(Changed(), "");
    inside.SetAbsolutePosition(kRows);
    EXPECT_EQ(inside["Name"].AsText(), "new") << "as it was when it was opened";
    EXPECT_EQ(Single("SELECT Count(*) FROM Person WHERE Name = 'new'"), "0");
}

TEST_F(ReadAsNeeded, OutlivesItsConnection) {
    connection_.Close();
    EXPECT_EQ(Changed(), "");
}

TEST_F(ReadAsNeeded, CanBeLeftBeforeItsEnd) {
    rows_.Open(connection_, "SELECT Id FROM Person WHERE Id = ?", CursorMode::ReadAsNeeded, {7});
    EXPECT_EQ(rows_.RecordCount(), 1);
    EXPECT_EQ(rows_["Id"].AsLong(), 7);
    rows_.Open(connection_, "SELECT Id FROM Person WHERE Id = 0", CursorMode::ReadAsNeeded);
    EXPECT_EQ(rows_.RecordCount(), 0);
    EXPECT_TRUE(rows_.Eof());
    EXPECT_THROW(rows_.Open(connection_, "SELECT Nothing FROM Person", CursorMode::ReadAsNeeded),
                 DialectError);
    EXPECT_FALSE(rows_.IsOpen());
    connection_.Execute("DELETE * FROM Person");
    EXPECT_EQ(Single("SELECT Count(*) FROM Person"), "0");
}

} // namespace

} // namespace platform
