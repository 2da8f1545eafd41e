#include "core/Configuration.h"

#include <gtest/gtest.h>

#include "core/ConfigFields.h"
#include "core/CoreFixture.h"
#include "core/Session.h"
#include "core/Startup.h"

namespace {

using core::Config;
using Configuration = tests::CoreBooks;
using StartWithoutBooks = tests::CoreProcess;

TEST_F(Configuration, NewBooksGetTheDefaultsOnce) {
    EXPECT_TRUE(core::OpenBooks());
    EXPECT_EQ(core::CountTable("Configuration"), 1);
    EXPECT_EQ(Config().CompanyName, "Your Company Name");
    EXPECT_EQ(Config().Term, 12);
    EXPECT_EQ(Config().Discount, platform::Currency::FromUnits(50));
    EXPECT_EQ(Config().DocDirectory, PathTo("Docs"));
    EXPECT_EQ(Config().CFASaleCAP, 10.0);
    EXPECT_EQ(Ask("SELECT TaxIDState FROM Configuration"), "12345678");
    EXPECT_EQ(Ask("SELECT DefaultCar FROM Configuration"), "NULL");
    EXPECT_GE(core::NextId(), 8903 * 24 * 60);

    Run("UPDATE Configuration SET CompanyName = 'Mine'");
    EXPECT_TRUE(core::OpenBooks());
    EXPECT_FALSE(core::CreateDefaultConfiguration(core::App().Connection));
    EXPECT_EQ(core::CountTable("Configuration"), 1);
    EXPECT_EQ(Config().CompanyName, "Mine");
}

TEST_F(Configuration, EveryFieldStandsInTheTable) {
    std::vector<std::string> names;
    for (const core::ConfigField& field : core::ConfigFields())
        names.emplace_back(field.name);
    EXPECT_EQ(names.size(), 53U);
    EXPECT_TRUE(core::FieldsExist("Configuration", names));
}

TEST_F(Configuration, WhatIsUnsetReadsAsEmpty) {
    Run("INSERT INTO Configuration (CompanyName, Term, DailyFee, ShowAllAccounts) "
        "VALUES (NULL, NULL, NULL, True)");
    Config().CompanyName = "before";
    Config().Term = 5;
    Config().DailyFee = platform::Currency::FromUnits(5);
    core::LoadConfiguration();
    EXPECT_EQ(Config().CompanyName, "");
    EXPECT_EQ(Config().Term, 0);
    EXPECT_EQ(Config().DailyFee, platform::Currency());
    EXPECT_TRUE(Config().ShowAllAccounts);

    Run("DELETE * FROM Configuration");
    Config().CompanyName = "stays";
    core::LoadConfiguration();
    EXPECT_EQ(Config().CompanyName, "stays");
}

TEST_F(StartWithoutBooks, GoesOnWhenTheDatabaseCannotBeOpened) {
    core::App().DbFile = PathTo("none.mdb");
    EXPECT_FALSE(core::OpenBooks());
    EXPECT_FALSE(std::filesystem::exists(PathTo("none.mdb")));

    MakeFile("text.mdb", "this is not a database, however long it is looked at");
    core::App().DbFile = PathTo("text.mdb");
    EXPECT_FALSE(core::OpenBooks());
    EXPECT_EQ(Config().CompanyName, "");
}

} // namespace
