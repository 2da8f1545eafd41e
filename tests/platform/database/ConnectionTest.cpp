#include <sqlite3.h>
#include <unistd.h>

#include <fstream>

#include "DatabaseFixture.h"
#include "OtherProcess.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/EngineFailure.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

/// Takes the superuser's rights away for a while, before whom no file is read-only.
class AsOrdinaryUser {
  public:
    AsOrdinaryUser() : user_(geteuid()) {
        if (user_ == 0 && seteuid(kNobody) != 0) throw std::runtime_error("can't change the user");
    }
    ~AsOrdinaryUser() {
        if (user_ == 0 && seteuid(0) != 0) std::abort();
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

  private:
    static constexpr uid_t kNobody = 65534;
    uid_t user_;
};

class ConnectionTest : public DatabaseFixture {
  protected:
    // Leaves a closed database where an ordinary user can read it and nothing else.
    void ForbidWriting(const fs::path& file) {
        using fs::perms;
        const perms readers = perms::owner_read | perms::group_read | perms::others_read;
        const perms entry = perms::owner_exec | perms::group_exec | perms::others_exec;
        fs::permissions(file, readers);
        fs::permissions(folder_.Path(), readers | entry);
    }
    void TearDown() override {
        fs::permissions(folder_.Path(), fs::perms::owner_all);
        SetBusyTimeout(kBusyTimeout);
    }

    std::string OpenError(const fs::path& file, OpenMode mode = OpenMode::ReadWrite) {
        Connection other;
        std::string error = ErrorOf([&] { other.Open(file, mode); });
        EXPECT_FALSE(other.IsOpen());
        return error;
    }
};

TEST_F(ConnectionTest, TellsWhyAFileCannotBeOpened) {
    std::ofstream(folder_ / "text") << std::string(5000, 'x');
    std::ofstream(folder_ / "empty").flush();
    fs::resize_file(folder_ / "empty", 0);
    fs::create_directory(folder_ / "directory");
    const auto where = [&](std::string_view name) { return (folder_ / name).string(); };

    EXPECT_EQ(OpenError(folder_ / "none"),
              "Cannot open " + where("none") + ": there is no such file");
    EXPECT_EQ(OpenError(folder_ / "text"),
              "Cannot open " + where("text") + ": it is not a database");
    EXPECT_EQ(OpenError(folder_ / "empty"),
              "Cannot open " + where("empty") + ": it is not a database");
    EXPECT_EQ(OpenError(folder_ / "directory"),
              "Cannot open " + where("directory") + ": it is a directory");
    EXPECT_EQ(fs::file_size(folder_ / "text"), 5000);
    EXPECT_EQ(fs::file_size(folder_ / "empty"), 0);
    EXPECT_FALSE(fs::exists(folder_ / "none"));
}

TEST_F(ConnectionTest, MakesAPrivateFileAndNeverOverAnother) {
    EXPECT_EQ(fs::status(File()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    AddPerson(1, "Ann");
    EXPECT_EQ(OpenError(File(), OpenMode::Create),
              "Cannot make " + File().string() + ": it already exists");
    EXPECT_EQ(Single("SELECT Name FROM Person"), "Ann");
    EXPECT_NE(OpenError(folder_ / "no" / "where", OpenMode::Create), "no error");
}

TEST_F(ConnectionTest, KeepsALogAndWritesItThroughAtEachCommit) {
    connection_.RunScript(
        "CREATE TABLE Pragma AS SELECT j.journal_mode AS Mode, s.synchronous AS "
        "Level FROM pragma_journal_mode j, pragma_synchronous s");
    EXPECT_EQ(Single("SELECT Mode FROM Pragma"), "wal");
    EXPECT_EQ(Single("SELECT Level FROM Pragma"), "2");
}

TEST_F(ConnectionTest, ReadsWhereNothingMayBeWritten) {
    AddPerson(1, "Ann");
    connection_.Close();
    ForbidWriting(File());
    const AsOrdinaryUser user;
    Connection reader;
    reader.Open(File(), OpenMode::ReadOnly);
    EXPECT_EQ(reader.Scalar("SELECT Name FROM Person"), Value("Ann"));
    EXPECT_THROW(reader.Execute("DELETE FROM Person"), DatabaseError);
    const std::string error = OpenError(File());
    EXPECT_TRUE(error.ends_with("read-only") || error.ends_with("can't be written to")) << error;

    Connection asAllowed;
    asAllowed.Open(File(), OpenMode::ReadWriteIfAllowed);
    EXPECT_TRUE(asAllowed.IsReadOnly());
    EXPECT_EQ(asAllowed.Scalar("SELECT Name FROM Person"), Value("Ann"));
    EXPECT_EQ(ErrorOf([&] {
                  UnitOfWork unit(asAllowed);
                  asAllowed.Execute("DELETE FROM Person");
              }),
              "These books can only be read.");
}

TEST_F(ConnectionTest, WritesWhereThatIsAllowed) {
    connection_.Open(File(), OpenMode::ReadWriteIfAllowed);
    EXPECT_FALSE(connection_.IsReadOnly());
    AddPerson(1, "Ann");
    EXPECT_NE(OpenError(folder_ / "none", OpenMode::ReadWriteIfAllowed), "no error");
}

TEST_F(ConnectionTest, SaysInPlainWordsWhatWentWrong) {
    struct Case {
        int code;
        int systemError;
        std::string_view said;
    };
    for (const Case& each : {
             Case{SQLITE_BUSY, 0,
                  "Another program is writing to these books. Try again when it has finished."},
             {SQLITE_BUSY_SNAPSHOT, 0,
              "Another program is writing to these books. Try again when it has finished."},
             {SQLITE_FULL, 0, "The disk is full."},
             {SQLITE_IOERR_SHMSIZE, ENOSPC, "The disk is full."},
             {SQLITE_IOERR_WRITE, EDQUOT, "The disk is full."},
             {SQLITE_IOERR_READ, EIO,
              "The database file can't be read or written: Input/output error."},
             {SQLITE_READONLY_DIRECTORY, 0, "These books can only be read."},
             {SQLITE_CORRUPT_VTAB, 0, "The database file is damaged: the engine's words."},
             // A stale errno isn't the reason of a failure that has nothing to do with the disk.
             {SQLITE_CONSTRAINT, ENOSPC, "the engine's words"},
         }) {
        EXPECT_EQ(DescribeEngineFailure(each.code, each.systemError, "the engine's words"),
                  each.said);
    }
}

TEST_F(ConnectionTest, ReadsAFileWithOddLettersInItsName) {
    connection_.Close();
    const fs::path odd = folder_ / "50% of #3?.mdb";
    fs::rename(File(), odd);
    ForbidWriting(odd);
    const AsOrdinaryUser user;
    connection_.Open(odd, OpenMode::ReadOnly);
    EXPECT_EQ(Single("SELECT Count(*) FROM Person"), "0");
}

TEST_F(ConnectionTest, FailsOnAFileThatAnotherProgramHoldsLocked) {
    AddPerson(1, "Ann");
    connection_.Close();
    SetBusyTimeout(std::chrono::milliseconds(20));
    const OtherProcess other([&] {
        sqlite3* database = nullptr;
        sqlite3_open(File().c_str(), &database);
        if (sqlite3_exec(database, "PRAGMA locking_mode = EXCLUSIVE; BEGIN IMMEDIATE", nullptr,
                         nullptr, nullptr) != SQLITE_OK) {
            throw std::runtime_error("not locked");
        }
    });
    ASSERT_TRUE(other.DidWork());
    EXPECT_EQ(OpenError(File()),
              "Cannot open " + File().string() + ": it is in use by another program");
}

TEST_F(ConnectionTest, ReadsOnButDoesNotWriteWhileAnotherProgramWrites) {
    AddPerson(1, "Ann");
    connection_.Close();
    OtherProcess other([&] {
        static Connection writer;
        writer.Open(File());
        static UnitOfWork unit(writer);
        writer.Execute("UPDATE Person SET Name = 'Bob'");
    });
    ASSERT_TRUE(other.DidWork());
    SetBusyTimeout(std::chrono::milliseconds(20));
    connection_.Open(File());
    EXPECT_EQ(Single("SELECT Name FROM Person"), "Ann");
    constexpr const char* kBusy =
        "Another program is writing to these books. Try again when it has finished.";
    EXPECT_EQ(ErrorOf([&] { AddPerson(2, "Cid"); }), kBusy);
    // A unit of work is a write from its start: nothing read in it can be out of date.
    EXPECT_EQ(ErrorOf([&] { const UnitOfWork unit(connection_); }), kBusy);
    other.Kill();
    AddPerson(2, "Cid");
    EXPECT_EQ(Single("SELECT Count(*) FROM Person WHERE Name <> 'Bob'"), "2");
}

TEST_F(ConnectionTest, CountsTheRowsThatAStatementAffects) {
    for (int id = 1; id <= 5; ++id)
        AddPerson(id, "x");
    EXPECT_EQ(connection_.Execute("UPDATE Person SET Age = 7 WHERE Id > ?", {3}), 2);
    EXPECT_EQ(connection_.Execute("SELECT * FROM Person"), 0);
    EXPECT_EQ(connection_.Execute("DELETE * FROM Person WHERE Id = 77"), 0);
    EXPECT_EQ(connection_.Execute("DELETE * FROM Person"), 5);
    EXPECT_EQ(connection_.Scalar("SELECT Id FROM Person"), std::nullopt);
}

TEST_F(ConnectionTest, ConvertsParametersToWhatTheirPlaceAsksFor) {
    connection_.Execute(
        "INSERT INTO Person (Id, Name, Remark, Age, Weight, Balance, Active) "
        "VALUES (?, ?, ?, ?, ?, ?, ?)",
        {" 12 ", 34, Date(2024, 2, 29), 56.5, "7.5", "1,234.56789", "True"});
    Recordset rows;
    rows.Open(connection_, "Person");
    EXPECT_EQ(rows["Id"].Value(), Value(std::int32_t{12}));
    EXPECT_EQ(rows["Name"].Value(), Value("34"));
    EXPECT_EQ(rows["Remark"].Value(), Value("02/29/2024"));
    EXPECT_EQ(rows["Age"].Value(), Value(std::int16_t{56}));
    EXPECT_EQ(rows["Weight"].Value(), Value(7.5));
    EXPECT_EQ(rows["Balance"].Value(), Value(Currency::FromScaled(12'345'679)));
    EXPECT_EQ(rows["Active"].Value(), Value(true));
}

TEST_F(ConnectionTest, RefusesParametersThatDoNotFit) {
    const auto insert = [&](std::initializer_list<Value> values) {
        return ErrorOf(
            [&] { connection_.Execute("INSERT INTO Person (Id, Age) VALUES (?, ?)", values); });
    };
    EXPECT_TRUE(insert({1, 40'000}).starts_with("Parameter 2: ")) << insert({1, 40'000});
    EXPECT_TRUE(insert({"one", 1}).starts_with("Parameter 1: ")) << insert({"one", 1});
    EXPECT_NE(insert({1}), "no error");
    EXPECT_NE(insert({1, 2, 3}), "no error");
    EXPECT_EQ(Single("SELECT Count(*) FROM Person"), "0");
}

TEST_F(ConnectionTest, KeepsStatementsApartHoweverManyThereWere) {
    for (int round = 0; round < 2; ++round) {
        for (int id = 0; id < 500; ++id) {
            const std::string sql = "SELECT " + std::to_string(id) + " AS Result";
            EXPECT_EQ(Single(sql), std::to_string(id));
        }
    }
}

TEST_F(ConnectionTest, TakesAStatementOfTenThousandCharacters) {
    AddPerson(1, "Ann");
    std::string sql = "SELECT Name FROM Person WHERE Name IN ('" + std::string(9'000, 'x') + "'";
    for (int id = 0; sql.size() < 10'000; ++id)
        sql += ", 'Person " + std::to_string(id) + "'";
    EXPECT_EQ(Single(sql + ", 'Ann')"), "Ann");
}

TEST_F(ConnectionTest, RunsAScriptWholeOrNotAtAll) {
    EXPECT_THROW(connection_.RunScript("CREATE TABLE Lake (Depth DOUBLE); CREATE TABLE Person (x)"),
                 DatabaseError);
    EXPECT_EQ(connection_.Tables().Find("Lake"), nullptr);
    connection_.RunScript("ALTER TABLE Town RENAME COLUMN Tax TO Levy");
    EXPECT_NE(connection_.Tables().Find("TOWN")->Find("levy"), nullptr);
    EXPECT_EQ(connection_.Tables().Tables().size(), 2);
}

TEST_F(ConnectionTest, SaysSoWhenNothingIsOpen) {
    connection_.Close();
    EXPECT_EQ(ErrorOf([&] { connection_.Execute("DELETE * FROM Person"); }),
              "No database is open.");
    Recordset rows;
    EXPECT_THROW(rows.Open(connection_, "Person"), DatabaseError);
    EXPECT_THROW(rows.Eof(), DatabaseError);
}

} // namespace

} // namespace platform
