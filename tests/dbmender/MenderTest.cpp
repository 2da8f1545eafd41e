#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>

#include "core/CoreFixture.h"
#include "core/RegistryKeys.h"
#include "core/Rows.h"
#include "core/Settings.h"
#include "dbmender/Diagnosis.h"
#include "dbmender/FirstBooks.h"
#include "dbmender/MenderLine.h"
#include "dbmender/Remedies.h"
#include "platform/database/Connection.h"
#include "platform/registry/Registry.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "shell/Registrations.h"
#include "store/CreateDatabase.h"

namespace {

using dbmender::Condition;
using dbmender::Remedy;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(MenderLine, ReadsEachSwitchAsAWholeWord) {
    const auto read = [](std::vector<const char*> words) {
        return dbmender::ReadMenderLine(words);
    };
    const auto line = read({"/NoWarning", "/Welcome", "/appstart=/opt/My Vestrel/Kestrom=2",
                            "/altdb= Second ", "/nodb", "x"});
    EXPECT_FALSE(line.warns);
    EXPECT_TRUE(line.welcomes);
    EXPECT_EQ(line.appStart, "/opt/My Vestrel/Kestrom=2");
    EXPECT_EQ(line.dbName, "second");
    for (const auto& words :
         {std::vector<const char*>{}, {"/altdb=", "/appstart"}, {"nowarning"}}) {
        const auto plain = read(words);
        EXPECT_TRUE(plain.warns);
        EXPECT_FALSE(plain.welcomes);
        EXPECT_EQ(plain.appStart, "");
        EXPECT_EQ(plain.dbName, "Default");
    }
}

dbmender::Diagnosis Found(Condition condition, const std::filesystem::path& folder = {}) {
    return {condition, folder, 0, {}};
}

class Mender : public tests::CoreProcess {
  protected:
    std::filesystem::path Books() const { return Folder() / "books"; }
    void WriteVersion(std::string_view text) {
        std::ofstream(Books() / store::kVersionFile) << text;
    }
    static std::string Registered(std::string_view name = "Default") {
        return core::GetRegString(core::kDatabasesKey, name, "-");
    }
};

TEST_F(Mender, TellsWhatIsWrong) {
    EXPECT_EQ(dbmender::ExamineRegistered("second").condition, Condition::NotRegistered);
    EXPECT_EQ(dbmender::Examine(Books()).condition, Condition::NoFolder);
    std::filesystem::create_directory(Books());
    EXPECT_EQ(dbmender::Examine(Books()).condition, Condition::NoFile);
    std::ofstream(Books() / store::kDatabaseFile) << "a letter to my tenant, not a database";
    EXPECT_EQ(dbmender::Examine(Books()).condition, Condition::NotADatabase);
    std::filesystem::remove(Books() / store::kDatabaseFile);

    store::CreateDatabase(Books());
    core::SetRegString(core::kDatabasesKey, "second", Books().string());
    EXPECT_EQ(dbmender::ExamineRegistered("second").condition, Condition::Ready);
    struct Version {
        const char* text;
        Condition condition;
        const char* says;
    };
    for (const auto& [text, condition, says] :
         {Version{"8", Condition::TooOld, "has version 8, and this Vestrel needs version 9"},
          Version{"nine", Condition::TooOld, "The version of the database"},
          Version{"9", Condition::Ready, "in order"},
          Version{"10", Condition::Ready, "made for a newer Vestrel, with version 10"}}) {
        WriteVersion(text);
        const auto found = dbmender::Examine(Books());
        EXPECT_EQ(found.condition, condition) << text;
        EXPECT_THAT(dbmender::Explain(found), HasSubstr(says));
    }
    std::filesystem::remove(Books() / store::kVersionFile);
    EXPECT_EQ(dbmender::Examine(Books()).condition, Condition::NoVersion);
    {
        platform::Connection database;
        database.Open(Books() / store::kDatabaseFile);
        database.RunScript("ALTER TABLE Lease DROP COLUMN Notes");
    }
    EXPECT_EQ(dbmender::Examine(Books()).condition, Condition::TooOld)
        << "without a version, one that lacks a field is of an older one";
    WriteVersion("9");
    const auto damaged = dbmender::Examine(Books());
    EXPECT_EQ(damaged.condition, Condition::Incomplete);
    EXPECT_THAT(dbmender::Explain(damaged), HasSubstr("the field Notes of the table Lease"));
}

TEST_F(Mender, ProposesTheDatabasesOwnFolderWhereNothingIsLost) {
    const std::filesystem::path usual = PathTo("db");
    const auto unknown = Found(Condition::NotRegistered);
    const auto gone = Found(Condition::NoFolder, Books());
    EXPECT_EQ(dbmender::ProposedFolder(unknown, Remedy::MakeEmpty), usual);
    EXPECT_EQ(dbmender::ProposedFolder(unknown, Remedy::UseExisting), "");
    EXPECT_EQ(dbmender::ProposedFolder(gone, Remedy::MakeSample), Books());
    store::CreateDatabase(usual);
    EXPECT_EQ(dbmender::ProposedFolder(unknown, Remedy::MakeEmpty), usual.string() + "2");
    store::CreateDatabase(Books());
    const auto old = Found(Condition::TooOld, Books());
    EXPECT_EQ(dbmender::ProposedFolder(old, Remedy::MakeEmpty), usual.string() + "2");
    EXPECT_EQ(dbmender::ProposedFolder(old, Remedy::UseExisting), Books());

    EXPECT_EQ(dbmender::RemediesFor(unknown).front(), Remedy::MakeEmpty);
    EXPECT_EQ(dbmender::RemediesFor(gone).front(), Remedy::UseExisting);
    EXPECT_THAT(dbmender::RemediesFor(Found(Condition::NoVersion)),
                ElementsAre(Remedy::WriteVersion, Remedy::UseExisting, Remedy::MakeEmpty,
                            Remedy::MakeSample));
}

TEST_F(Mender, NeverProposesBooksInsideABuildFolder) {
    ::setenv("XDG_DATA_HOME", PathTo("data").c_str(), 1);
    std::filesystem::create_directories(Folder() / "build/bin/db");
    MakeFile("build/CMakeCache.txt");
    core::App().AppPath = PathTo("build/bin/");
    const std::filesystem::path ours = Folder() / "data/Vestrel/db";
    EXPECT_EQ(dbmender::ProposedFolder(Found(Condition::NotRegistered), Remedy::MakeEmpty), ours);
    EXPECT_EQ(dbmender::ProposedFolder(Found(Condition::NoFile, Folder() / "build/bin/db"),
                                       Remedy::MakeSample),
              ours);
    ::unsetenv("XDG_DATA_HOME");
}

TEST_F(Mender, LooksForBooksFirstWhenTheSettingsAreDamaged) {
    MakeFile("registry.json", "{\"SOFTWARE");
    platform::SetRegistry(platform::OpenJsonRegistry(Folder() / "registry.json"));
    const auto found = dbmender::ExamineRegistered("Default");
    EXPECT_EQ(found.condition, Condition::SettingsDamaged);
    EXPECT_THAT(dbmender::Explain(found), HasSubstr("settings of this computer are damaged"));
    EXPECT_EQ(dbmender::RemediesFor(found).front(), Remedy::UseExisting);
}

TEST_F(Mender, FindsDamageInsideTheFile) {
    store::CreateDatabase(Books());
    {
        platform::Connection database;
        database.Open(Books() / store::kDatabaseFile);
        for (int i = 0; i < 2000; ++i)
            database.Execute("INSERT INTO Alerts (Description) VALUES (?)",
                             {"a message of some length, number " + std::to_string(i)});
    }
    {
        std::fstream file(Books() / store::kDatabaseFile, std::ios::in | std::ios::out);
        file.seekp(-20'000, std::ios::end);
        file << std::string(8'000, 'x');
    }
    core::SetRegString(core::kDatabasesKey, "Default", Books().string());
    const auto found = dbmender::ExamineRegistered("Default");
    EXPECT_EQ(found.condition, Condition::Damaged);
    EXPECT_THAT(dbmender::Explain(found), HasSubstr("is damaged: "));
    EXPECT_THROW(dbmender::Apply({Remedy::UseExisting, Books()}, "Default"), platform::Error);
}

TEST_F(Mender, RefusesWhatCannotBeDone) {
    store::CreateDatabase(Books());
    MakeFile("letter");
    struct Case {
        Remedy remedy;
        std::filesystem::path folder;
        const char* says;
    };
    for (const auto& [remedy, folder, says] :
         {Case{Remedy::MakeEmpty, "", "Choose a folder"},
          Case{Remedy::MakeEmpty, "db", "the full path"},
          Case{Remedy::MakeSample, Books(), "a database in this folder already"},
          Case{Remedy::MakeEmpty, PathTo("letter"), "is a file"},
          Case{Remedy::UseExisting, PathTo("nowhere"), "is missing"},
          Case{Remedy::WriteVersion, Books(), "in order"}}) {
        EXPECT_THAT(dbmender::Objection({remedy, folder}), HasSubstr(says)) << folder;
        EXPECT_THROW(dbmender::Apply({remedy, folder}, "Default"), platform::Error) << folder;
    }
    EXPECT_EQ(Registered(), "-");
    EXPECT_EQ(dbmender::Objection({Remedy::UseExisting, Books()}), "");
}

TEST_F(Mender, MakesFindsAndMendsAndRegistersIt) {
    const std::filesystem::path made = Folder() / "new" / "books";
    dbmender::Apply({Remedy::MakeEmpty, made}, "Default");
    EXPECT_EQ(dbmender::ExamineRegistered("Default").condition, Condition::Ready);
    EXPECT_EQ(Registered(), made.string() + "/");
    EXPECT_TRUE(platform::FileExists(PathTo("References.mdb")));

    dbmender::Apply({Remedy::UseExisting, made}, "second");
    EXPECT_EQ(Registered("second"), made.string() + "/");

    std::filesystem::remove(made / store::kVersionFile);
    dbmender::Apply({Remedy::WriteVersion, made}, "Default");
    EXPECT_EQ(platform::ReadWholeFile(made / store::kVersionFile), "9");
}

struct Enough {};

TEST_F(Mender, LeavesNothingOfASampleThatWasBrokenOff) {
    shell::RegisterLogic();
    int told = 0;
    const auto stop = [&](int daysDone, int days) {
        EXPECT_EQ(daysDone, ++told);
        EXPECT_GT(days, 700);
        if (daysDone == 2) throw Enough();
    };
    EXPECT_THROW(dbmender::Apply({Remedy::MakeSample, Books()}, "Default", stop), Enough);
    EXPECT_EQ(dbmender::Objection({Remedy::MakeSample, Books()}), "") << "it can be begun again";
    EXPECT_EQ(Registered(), "-");
    EXPECT_FALSE(core::App().Connection.IsOpen());
}

class FirstBooks : public Mender {
  protected:
    std::string Made(const char* sql) const {
        platform::Connection books;
        books.Open(Books() / store::kDatabaseFile, platform::OpenMode::ReadOnly);
        const platform::Value first = core::ReadValue(sql, {}, books);
        return first.IsNull() ? "-" : first.AsText();
    }
};

TEST_F(FirstBooks, HoldWhatWasEnteredOnceOrNothing) {
    const auto rent = platform::Currency::FromScaled(9'505'000);
    dbmender::MakeFirstBooks(
        Books(), {" Elm & O'Hara ", "12 Elm St", " B ", rent, platform::Date(2026, 11, 1)});
    EXPECT_FALSE(core::App().Connection.IsOpen());
    EXPECT_EQ(dbmender::Examine(Books()).condition, Condition::Ready);
    EXPECT_EQ(Made("SELECT CompanyName FROM Configuration"), "Elm & O'Hara");
    EXPECT_EQ(Made("SELECT Address FROM Building"), "12 Elm St");
    EXPECT_EQ(Made("SELECT Unit FROM Unit, Building WHERE Unit.IdBuilding = Building.IdBuilding "
                   "AND Unit.Status = 'Avaliable'"),
              "B");
    EXPECT_EQ(Made("SELECT Rent FROM Unit"), "950.5");
    EXPECT_EQ(Made("SELECT Content FROM BooksSetting WHERE Name = 'KeptSince'"), "11/01/2026");
    EXPECT_THROW(dbmender::MakeFirstBooks(Books(), {"Other", "", "", {}, {}}), platform::Error);
    EXPECT_EQ(Made("SELECT CompanyName FROM Configuration"), "Elm & O'Hara") << "never overwritten";
}

TEST_F(FirstBooks, HaveNoUnitWithoutABuilding) {
    dbmender::MakeFirstBooks(Books(), {"", " ", "B", {}, {}});
    EXPECT_EQ(Made("SELECT Count(*) FROM Configuration"), "1");
    EXPECT_EQ(Made("SELECT Count(*) FROM Unit"), "0");
    EXPECT_EQ(Made("SELECT Count(*) FROM BooksSetting"), "0");
}

} // namespace
