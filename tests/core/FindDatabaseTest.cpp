#include "core/FindDatabase.h"

#include <gmock/gmock.h>

#include <sstream>

#include "core/CoreFixture.h"
#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "platform/system/Paths.h"
#include "support/Cases.h"
#include "support/ScriptedDialogs.h"

namespace {

using core::DatabaseState;
using FindDatabase = tests::CoreProcess;
using DatabaseMender = tests::CoreProcess;

TEST_F(FindDatabase, VersionDecidesWhetherADatabaseIsReady) {
    core::SetRegString(core::kDatabasesKey, "Default", Folder().string());
    MakeFile("Vestrel.mdb");
    support::ForEachCase(
        VESTREL_TEST_DATA "/versions.cases", "versions", [this](const support::Case& each) {
            std::filesystem::remove(Folder() / "Version");
            if (each["file"] != "no file") MakeFile("Version", each["file"]);
            EXPECT_EQ(core::FindDatabase(nullptr),
                      each["state"] == "Ready" ? DatabaseState::Ready : DatabaseState::TooOld);
            EXPECT_EQ(core::ReadDbVersion(), each.Number<std::int16_t>("number"));
        });
}

TEST_F(FindDatabase, WhatWasFoundIsLogged) {
    core::SetRegString(core::kDatabasesKey, "Default", Folder().string());
    MakeFile("Version", "8");
    std::ostringstream log;
    EXPECT_EQ(core::FindDatabase(&log), DatabaseState::Missing);
    EXPECT_EQ(log.str(),
              "{ } Registry value exists : True\n"
              "{ } Database path         : " +
                  Folder().string() +
                  "\n"
                  "{ } Database file         : " +
                  PathTo("Vestrel.mdb") +
                  "\n"
                  "{ } DB File exists        : False\n"
                  "{ } DB Current Version    : 9\n"
                  "{ } DB Existing Version   : 8\n");
}

TEST_F(FindDatabase, NothingRegisteredIsNoDatabase) {
    std::ostringstream log;
    core::App().DbFile = "left over";
    EXPECT_EQ(core::FindDatabase(&log), DatabaseState::Missing);
    EXPECT_EQ(core::App().DbPath, "");
    EXPECT_EQ(core::App().DbFile, "");
    EXPECT_THAT(log.str(), testing::StartsWith("{ } Registry value exists : False\n"));
}

TEST_F(FindDatabase, TheOldSettingIsMovedOverForTheDefaultDatabaseAlone) {
    core::SetRegString(core::kOldSettingsKey, core::kOldDatabaseFile, PathTo("Old.mdb"));
    MakeFile("Vestrel.mdb");
    MakeFile("Version", "9");

    core::App().DbName = "second";
    EXPECT_EQ(core::FindDatabase(nullptr), DatabaseState::Missing);
    EXPECT_EQ(core::App().DbPath, "");

    core::App().DbName = "Default";
    EXPECT_EQ(core::FindDatabase(nullptr), DatabaseState::Ready);
    EXPECT_EQ(core::App().DbPath, PathTo(""));
    EXPECT_EQ(core::GetRegString(core::kDatabasesKey, "Default", ""), PathTo(""));

    core::SetRegString(core::kOldSettingsKey, core::kOldDatabaseFile, "/elsewhere/Old.mdb");
    EXPECT_EQ(core::FindDatabase(nullptr), DatabaseState::Ready);
}

TEST_F(FindDatabase, AnotherNameIsAnotherDatabase) {
    std::filesystem::create_directory(Folder() / "two");
    MakeFile("two/Vestrel.mdb");
    MakeFile("two/Version", "9");
    core::SetRegString(core::kDatabasesKey, "Default", Folder().string());
    core::SetRegString(core::kDatabasesKey, "Second", PathTo("two/"));
    core::ParseCommandLine("/altdb=second");
    EXPECT_EQ(core::FindDatabase(nullptr), DatabaseState::Ready);
    EXPECT_EQ(core::App().DbFile, PathTo("two/Vestrel.mdb"));
}

TEST_F(DatabaseMender, IsStartedWithTheWayBackAndTheProcessEnds) {
    const std::string self = "/appstart=" + platform::ExecutablePath().string();
    struct Case {
        std::string_view database;
        bool hasMender;
        std::vector<std::string> started;
    };
    const std::string mender = PathTo("dbmender.exe");
    const Case cases[] = {
        {"Default", false, {}},
        {"Default", true, {mender, "/nowarning", self}},
        {"second", true, {mender, "/nowarning", self, "/altdb=second"}},
    };
    for (const Case& c : cases) {
        if (c.hasMender) MakeFile("dbmender.exe");
        core::App().DbName = c.database;
        const support::ScriptedDialogs person;
        std::vector<std::string> started;
        int ended = 0;
        core::StartDatabaseMender({
            .start =
                [&](const std::filesystem::path& program,
                    const std::vector<std::string>& arguments) {
                    started = arguments;
                    started.insert(started.begin(), program.string());
                    return true;
                },
            .endProcess = [&] { ++ended; },
        });
        EXPECT_EQ(started, c.started);
        EXPECT_EQ(ended, 1);

        ASSERT_EQ(person.Heard().size(), c.hasMender ? 1U : 2U);
        EXPECT_EQ(person.Heard()[0].title, "Database Notice");
        EXPECT_EQ(person.Heard()[0].icon, platform::Icon::Information);
        EXPECT_EQ(person.Heard()[0].text,
                  "Database is missing or needs upgrading.\n\n"
                  "The Database Mender will automatically be started to help correct\n"
                  "this problem. All other Vestrel programs should be shut down.\n\n"
                  "Press OK to continue.");
        if (!c.hasMender) {
            EXPECT_EQ(person.Heard()[1].title, "Error");
            EXPECT_EQ(person.Heard()[1].icon, platform::Icon::Critical);
        }
    }
}

TEST_F(DatabaseMender, WelcomesAUserWhoNeverHadBooksWithoutTheNotice) {
    core::SetAppPath(PathTo(""));
    MakeFile("dbmender.exe");
    core::App().DbName = core::kDefaultDatabase;
    const support::ScriptedDialogs person;
    std::vector<std::string> started;
    core::StartDatabaseMender(
        {
            .start =
                [&](const std::filesystem::path&, const std::vector<std::string>& arguments) {
                    started = arguments;
                    return true;
                },
            .endProcess = [] {},
        },
        core::MenderGreeting::Welcome);
    EXPECT_TRUE(person.Heard().empty());
    ASSERT_FALSE(started.empty());
    EXPECT_EQ(started.back(), "/welcome");
}

} // namespace
