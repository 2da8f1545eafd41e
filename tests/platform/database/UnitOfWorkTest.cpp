#include "DatabaseFixture.h"
#include "OtherProcess.h"

namespace platform {

namespace {

class UnitOfWorkTest : public DatabaseFixture {
  protected:
    std::string Ids() {
        Recordset rows;
        rows.Open(connection_, "SELECT Id FROM Person ORDER BY Id");
        return Column(rows, "Id");
    }
};

TEST_F(UnitOfWorkTest, TakesBackWhatWasNotCommitted) {
    AddPerson(1, "Ann");
    {
        UnitOfWork unit(connection_);
        EXPECT_TRUE(connection_.InUnitOfWork());
        connection_.Execute("DELETE * FROM Person");
        AddPerson(2, "Bob");
        EXPECT_EQ(Ids(), "2 ");
    }
    EXPECT_FALSE(connection_.InUnitOfWork());
    EXPECT_EQ(Ids(), "1 ");
}

TEST_F(UnitOfWorkTest, InnerUnitsAreTakenBackByThemselvesAndWithTheOuterOne) {
    {
        UnitOfWork outer(connection_);
        AddPerson(1, "Ann");
        {
            UnitOfWork kept(connection_);
            AddPerson(2, "Bob");
            kept.Commit();
        }
        {
            UnitOfWork dropped(connection_);
            AddPerson(3, "Cid");
            UnitOfWork deeper(connection_);
            AddPerson(4, "Dan");
            deeper.Commit();
        }
        AddPerson(5, "Eve");
        EXPECT_EQ(Ids(), "1 2 5 ");
        outer.Commit();
        EXPECT_THROW(outer.Commit(), DatabaseError);
    }
    EXPECT_EQ(Ids(), "1 2 5 ");
    {
        UnitOfWork outer(connection_);
        UnitOfWork inner(connection_);
        AddPerson(6, "Fay");
        EXPECT_THROW(outer.Commit(), DatabaseError);
        inner.Commit();
    }
    EXPECT_EQ(Ids(), "1 2 5 ");
}

TEST_F(UnitOfWorkTest, AFailingStatementEndsNothing) {
    connection_.RunScript("CREATE UNIQUE INDEX OneId ON Person (Id)");
    UnitOfWork unit(connection_);
    AddPerson(1, "Ann");
    EXPECT_THROW(connection_.Execute("INSERT INTO Person (Id) SELECT 2 - Id FROM Person UNION "
                                     "SELECT Id FROM Person"),
                 DatabaseError);
    AddPerson(3, "Cid");
    unit.Commit();
    EXPECT_EQ(Ids(), "1 3 ");
}

TEST_F(UnitOfWorkTest, NothingIsWrittenOnceTheEngineGaveTheUnitUp) {
    connection_.RunScript(
        "CREATE TRIGGER Refuse BEFORE INSERT ON Person WHEN new.Id = 13 BEGIN "
        "SELECT RAISE(ROLLBACK, 'refused'); END");
    {
        UnitOfWork unit(connection_);
        AddPerson(1, "Ann");
        EXPECT_EQ(ErrorOf([&] { AddPerson(13, "Bob"); }), "refused");
        EXPECT_THROW(AddPerson(2, "Cid"), DatabaseError);
        EXPECT_THROW(UnitOfWork inner(connection_), DatabaseError);
        EXPECT_THROW(unit.Commit(), DatabaseError);
    }
    EXPECT_EQ(Ids(), "");
    AddPerson(3, "Dan");
    EXPECT_EQ(Ids(), "3 ");
}

TEST_F(UnitOfWorkTest, AFullDiskLeavesTheDataAsBefore) {
    AddPerson(1, "Ann");
    connection_.RunScript("PRAGMA max_page_count = 30");
    const std::string long_name(3000, 'x');
    const auto fill = [&] {
        UnitOfWork unit(connection_);
        for (int id = 2; id < 1000; ++id)
            AddPerson(id, long_name);
        unit.Commit();
    };
    EXPECT_EQ(ErrorOf(fill), "The disk is full.");
    EXPECT_EQ(Ids(), "1 ");
    AddPerson(2, "Bob");
    EXPECT_EQ(Ids(), "1 2 ");
}

TEST_F(UnitOfWorkTest, AProcessKilledInTheMiddleLeavesTheDataAsBefore) {
    AddPerson(1, "Ann");
    connection_.Close();
    OtherProcess writer([&] {
        connection_.Open(File());
        static UnitOfWork unit(connection_);
        connection_.Execute("UPDATE Person SET Name = 'gone'");
        const std::string remark(5000, 'x');
        // Enough for the engine to write changed pages out before the commit.
        for (int id = 2; id < 5000; ++id) {
            connection_.Execute("INSERT INTO Person (Id, Remark) VALUES (?, ?)", {id, remark});
        }
    });
    ASSERT_TRUE(writer.DidWork());
    const auto log = std::filesystem::file_size(File().string() + "-wal");
    EXPECT_GT(log, 5'000'000);
    writer.Kill();
    connection_.Open(File());
    EXPECT_EQ(Ids(), "1 ");
    EXPECT_EQ(Single("SELECT Name FROM Person"), "Ann");
}

TEST_F(UnitOfWorkTest, KnowsTheTablesAgainAfterAScriptWasTakenBack) {
    {
        UnitOfWork unit(connection_);
        connection_.RunScript("CREATE TABLE Lake (Depth DOUBLE)");
        EXPECT_EQ(connection_.Execute("INSERT INTO Lake (Depth) VALUES (3.5)"), 1);
    }
    EXPECT_EQ(connection_.Tables().Find("Lake"), nullptr);
    EXPECT_THROW(connection_.Execute("INSERT INTO Lake (Depth) VALUES (3.5)"), DialectError);
}

TEST_F(UnitOfWorkTest, ClosingTheConnectionEndsItWithoutAWord) {
    UnitOfWork unit(connection_);
    AddPerson(1, "Ann");
    connection_.Close();
    connection_.Open(File());
    EXPECT_THROW(unit.Commit(), DatabaseError);
    EXPECT_EQ(Ids(), "");
}

} // namespace

} // namespace platform
