#include "core/Session.h"

#include <gmock/gmock.h>

#include <sstream>

#include "core/CoreFixture.h"
#include "core/MessagePump.h"
#include "platform/values/Errors.h"

namespace {

using platform::CursorMode;
using Session = tests::CoreBooks;
using SessionOpening = tests::CoreProcess;

TEST_F(SessionOpening, IsLoggedWithItsFault) {
    std::ostringstream log;
    core::App().DiagFile = &log;
    core::App().DbFile = PathTo("none.mdb");
    platform::Connection connection;
    std::string path;
    EXPECT_FALSE(core::OpenDatabase(connection, path));
    EXPECT_EQ(path, PathTo("none.mdb"));
    EXPECT_THAT(log.str(),
                testing::MatchesRegex("\\{ \\} Opening database at " + path +
                                      "\n\\{\\*\\} Error [0-9]+ opening database \\{.+\\}\n"));
    EXPECT_FALSE(connection.IsOpen());
    EXPECT_TRUE(core::CloseDatabase(connection));
}

TEST_F(Session, ARowSetTellsItsCountOrMinusOne) {
    Run("INSERT INTO Users (IdUser, UserName) VALUES (1, 'Ann')");
    Run("INSERT INTO Users (IdUser, UserName) VALUES (2, 'Bob')");
    platform::Recordset rows;
    EXPECT_EQ(
        core::OpenRecordset(rows, "SELECT * FROM Users ORDER BY IdUser", CursorMode::ReadOnly), 2);
    EXPECT_EQ(rows["UserName"].AsText(), "Ann");
    EXPECT_EQ(core::OpenRecordset(rows, "SELECT * FROM Users WHERE UserName = ?",
                                  CursorMode::Updatable, {"bob"}),
              1);
    EXPECT_EQ(
        core::OpenRecordset(rows, "SELECT * FROM Users WHERE IdUser = 3", CursorMode::ReadOnly), 0);
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ(core::OpenRecordset(rows, "SELECT * FRM Users", CursorMode::ReadOnly), -1);
    EXPECT_FALSE(rows.IsOpen());
    EXPECT_EQ(core::OpenRecordset(rows, "Users", CursorMode::Updatable), 2);
    core::CloseRecordset(rows);
    core::CloseRecordset(rows);
}

TEST_F(Session, ACountKeepsItsWidthUnless16BitsAreAskedFor) {
    const auto addRows = [](int count) {
        core::App().Connection.RunScript(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
            std::to_string(count) + ") INSERT INTO Users (IdUser) SELECT i FROM n");
    };
    platform::Recordset rows;
    addRows(32767);
    const auto open = [&] {
        return core::OpenRecordset(rows, "SELECT IdUser FROM Users", CursorMode::ReadOnly);
    };
    EXPECT_EQ(core::CountIn16Bits(open()), 32767);
    addRows(1);
    EXPECT_EQ(open(), 32768);
    EXPECT_EQ(core::CountIn16Bits(open()), -1);
    EXPECT_EQ(core::CountIn16Bits(-1), -1);
    EXPECT_EQ(core::CountTable("Users"), 32768);
}

TEST_F(Session, CountsAreZeroOnFailure) {
    Run("INSERT INTO Users (IdUser, UserName) VALUES (1, 'Ann')");
    EXPECT_EQ(core::CountTable("Users"), 1);
    EXPECT_EQ(core::CountTable("NoTable"), 0);
    EXPECT_EQ(core::CountRecords("Users", ""), 1);
    EXPECT_EQ(core::CountRecords("Users", "UserName = 'ANN'"), 1);
    EXPECT_EQ(core::CountRecords("Users", "UserName = 'Bob'"), 0);
    EXPECT_EQ(core::CountRecords("Users", "Nonsense = 1"), 0);
    core::App().Connection.Close();
    EXPECT_EQ(core::CountTable("Users"), 0);
    EXPECT_FALSE(core::ExecuteSql("DELETE * FROM Users"));
}

TEST_F(Session, AScalarStaysAsItWasWithoutAResult) {
    Run("INSERT INTO Users (IdUser, UserName) VALUES (1, NULL)");
    for (const auto* sql :
         {"SELECT IdUser AS Result FROM Users WHERE IdUser = 9",
          "SELECT UserName AS Result FROM Users", "SELECT IdUser FROM Users", "SELEC"}) {
        platform::Value value = "before";
        core::GetScalar(sql, value);
        EXPECT_EQ(value, platform::Value("before")) << sql;
        if (std::string_view(sql).find("Result") != std::string_view::npos) {
            EXPECT_EQ(core::LookUp(sql, {}), std::nullopt) << sql;
        }
    }
    platform::Value value;
    core::GetScalar("SELECT Max(IdUser) AS Result FROM Users", value);
    EXPECT_EQ(value.AsLong(), 1);
}

TEST_F(Session, TheTablesAreKnownWhateverTheirCase) {
    EXPECT_TRUE(core::TableExists("MORTGAGE"));
    EXPECT_FALSE(core::TableExists("Mortgages"));
    EXPECT_TRUE(core::FieldsExist("users", std::vector<std::string>{"IDUSER", "UserName"}));
    EXPECT_FALSE(core::FieldsExist("Users", std::vector<std::string>{"IdUser", "Nonsense"}));
    EXPECT_FALSE(core::FieldsExist("NoTable", std::vector<std::string>{}));

    platform::Connection other;
    other.Open(PathTo("two.mdb"), platform::OpenMode::Create);
    other.RunScript(
        "CREATE TABLE [Odd Name] (a INTEGER, b TEXT); CREATE TABLE c (d INTEGER);"
        "INSERT INTO [Odd Name] VALUES (1, ''), (2, ''); INSERT INTO c VALUES (1)");
    const core::TableTotals totals = core::ListTables(other);
    EXPECT_THAT(totals.names, testing::UnorderedElementsAre("Odd Name", "c"));
    EXPECT_EQ(totals.tables, 2);
    EXPECT_EQ(totals.fields, 3);
    EXPECT_EQ(totals.records, 3);
}

TEST(AddWhere, JoinsConditionsByWhatStandsThere) {
    struct Case {
        std::string sql;
        std::string_view result;
    };
    Case cases[] = {
        {"SELECT a FROM b", "SELECT a FROM b WHERE (x)"},
        {"SELECT a FROM b ", "SELECT a FROM b WHERE (x)"},
        {"SELECT a FROM b WHERE (y)", "SELECT a FROM b WHERE (y) AND (x)"},
        {"SELECT a FROM b where y ", "SELECT a FROM b where y AND (x)"},
        {"SELECT a FROM Elsewhere", "SELECT a FROM Elsewhere AND (x)"},
        {"", " WHERE (x)"},
    };
    for (Case& c : cases) {
        core::AddWhere(c.sql, "x");
        EXPECT_EQ(c.sql, c.result);
    }
}

TEST_F(Session, NullsAreRepairedByTheirType) {
    core::App().Connection.Close();
    core::App().Connection.Open(PathTo("nulls.mdb"), platform::OpenMode::Create);
    core::App().Connection.RunScript(
        "CREATE TABLE T (L INTEGER, I SMALLINT, D DOUBLE, C CURRENCY, B BOOLEAN, X TEXT,"
        " M MEMO TEXT, Full TEXT);"
        "INSERT INTO T (Full) VALUES ('kept')");
    platform::Recordset rows;
    core::OpenRecordset(rows, "SELECT * FROM T", CursorMode::Updatable);
    std::ostringstream log;
    EXPECT_TRUE(core::RepairNulls(rows, &log));
    EXPECT_THAT(log.str(), testing::StartsWith("{*} NULL value detected in field L\n"
                                               "{*} NULL value detected in field I\n"));
    rows.Update();
    EXPECT_EQ(core::OpenRecordset(rows,
                                  "SELECT * FROM T WHERE L = 0 AND I IS NULL AND D = 0 AND C = 0 "
                                  "AND B = False AND X = '' AND M = '' AND Full = 'kept'",
                                  CursorMode::Updatable),
              1);

    rows["I"].Set(std::int16_t{3});
    EXPECT_FALSE(core::RepairNulls(rows, nullptr));
}

TEST_F(Session, IdentifiersFollowOneAnother) {
    EXPECT_THROW(core::NextId(), platform::DatabaseError);
    Run("INSERT INTO Configuration (NextId) VALUES (41)");
    EXPECT_EQ(core::NextId(), 41);
    EXPECT_EQ(core::NextIds(10), 42);
    EXPECT_EQ(core::NextId(), 52);
    EXPECT_THROW(core::NextIds(0), platform::Error);

    Run("UPDATE Configuration SET NextId = 2147483640");
    EXPECT_THROW(core::NextIds(8), platform::OverflowError);
    EXPECT_EQ(Ask("SELECT NextId FROM Configuration"), "2147483640");
    EXPECT_EQ(core::NextIds(7), 2147483640);
    EXPECT_THROW(core::NextId(), platform::OverflowError);
}

TEST_F(Session, NoMessageRunsInsideAUnitOfWork) {
    Run("INSERT INTO Configuration (NextId) VALUES (41)");
    int pumped = 0;
    core::SetMessagePump([&] { ++pumped; });
    core::NextId();
    EXPECT_EQ(pumped, 1);
    {
        platform::UnitOfWork unit(core::App().Connection);
        core::NextId();
        core::LetMessagesRun();
        unit.Commit();
    }
    EXPECT_EQ(pumped, 1);
    core::LetMessagesRun();
    EXPECT_EQ(pumped, 2);
    core::SetMessagePump({});
}

TEST_F(Session, IdentifiersBeginAtTheMinuteTheyAreFirstAskedFor) {
    Run("INSERT INTO Configuration (NextId) VALUES (NULL)");
    const std::int32_t midnight = 8903 * 24 * 60; // days from 1/1/2000 to 5/17/2024
    const std::int32_t first = core::NextId();
    EXPECT_GE(first, midnight);
    EXPECT_LT(first, midnight + 24 * 60);
    EXPECT_EQ(core::NextId(), first + 1);
}

} // namespace
