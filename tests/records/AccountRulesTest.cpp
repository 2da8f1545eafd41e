#include "records/AccountRules.h"

#include <gtest/gtest.h>

#include "core/RecordsFixture.h"

namespace {

using records::AccountName;

TEST(AccountRules, AnAccountIsShownAsItsCompanyOrItsPerson) {
    const struct {
        AccountName name;
        const char* shown;
    } cases[] = {
        {{"Ace Plumbing", "", "", "", false}, "Ace Plumbing"},
        {{"Ace Plumbing", "Smith", "Ann", "B", false}, "Ace Plumbing"},
        {{"Ace Plumbing", "Smith", "Ann", "B", true}, "Smith, Ann B"},
        {{"", "Smith", "Ann", "B", false}, "Smith, Ann B"},
        {{"", "O'Brien", "Ann", "", false}, "O'Brien, Ann"},
        {{"", "Smith", "", "", false}, "Smith, "},
        {{"Ace Plumbing", "", "", "", true}, ", "},
    };
    for (const auto& each : cases)
        EXPECT_EQ(records::ShowAs(each.name), each.shown);
}

TEST(AccountRules, ACompanyOrALastNameIsWanted) {
    const std::vector<std::string> missing = {"A company or last name must be entered."};
    EXPECT_EQ(records::AccountErrors({"", "", "Ann", "B", true}), missing);
    EXPECT_EQ(records::AccountErrors({"  ", "\t", "", "", false}), missing);
    EXPECT_TRUE(records::AccountErrors({"Ace", "", "", "", false}).empty());
    EXPECT_TRUE(records::AccountErrors({"", "Li", "", "", false}).empty());
}

TEST(AccountRules, EveryKnownTypeIsOfferedThatNoUsedOneContains) {
    const std::string others = "Utility,Other,Vendor,Insurance,Mortgagee,";
    const std::string people = "Building Manager,Building Owner,";
    const struct {
        const char* inUse;
        std::string offered;
    } cases[] = {
        {"", "Retail,Credit,Bank," + others + people},
        {"Bank", "Bank,Retail,Credit," + others + people},
        {"Credit Union,Banker,", "Credit Union,Banker,Retail," + others + people},
        {"bank,", "bank,Retail,Credit,Bank," + others + people},
        {"Building Owner,", "Building Owner,Retail,Credit,Bank," + others + people},
        {"Property Owner,", "Property Owner,Retail,Credit,Bank," + others + "Building Manager,"},
        {"Property Manager,", "Property Manager,Retail,Credit,Bank," + others + "Building Owner,"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(records::OfferedAccountTypes(each.inUse), each.offered);
}

using AccountTypes = tests::CoreRecords;

TEST_F(AccountTypes, ThoseInUseAreReadOnceEachAndBlankOnesPassedOver) {
    Run("INSERT INTO Account (IdAccount, AccountType) VALUES (70, '')");
    Run("INSERT INTO Account (IdAccount, AccountType) VALUES (71, NULL)");
    Run("INSERT INTO Account (IdAccount, AccountType) VALUES (72, 'Jo''s \"friends\"')");
    EXPECT_EQ(records::OfferedAccountTypes(),
              "Bank,Building Owner,Jo's \"friends\",Retail,Credit,Utility,Other,Vendor,Insurance,"
              "Mortgagee,Building Manager,Building Owner,");
}

} // namespace
