#include "core/Lists.h"

#include <gmock/gmock.h>

#include "core/Configuration.h"
#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "platform/values/Errors.h"

namespace {

using core::ChoiceList;
using Descriptions = tests::CoreRecords;
using Lists = tests::CoreRecords;

TEST_F(Descriptions, TellARecordInOneLine) {
    struct Case {
        int kind;
        std::int32_t id;
        std::size_t maxLength;
        bool shortForm;
        std::string_view line;
    };
    const Case cases[] = {
        {core::kAccount, 60, 0, false, "River Bank"},
        {core::kOwner, 61, 0, false, "Al Owner"},
        {core::kBuildingManagerAccount, 61, 0, false, "Al Owner"},
        {core::kVendorAccount, 61, 0, false, ""},
        {core::kLease, 40, 0, false, "Smith, 12 Elm St B"},
        {core::kLease, 40, 9, false, "Smith, 12"},
        {core::kLease, 41, 0, false, ""},
        {core::kMortgage, 50, 0, false, "First loan"},
        {core::kMortgage, 51, 0, false, ""},
        {core::kTenant, 30, 0, false, "Smith, John Q"},
        {core::kTenant, 31, 0, false, "O'Brien, Ann"},
        {core::kTenant, 32, 0, false, "Zu, Li"},
        {core::kAppliance, 70, 0, false, "Ace Stove"},
        {core::kRoom, 80, 100, false, "Kitchen"},
        {core::kBuilding, 10, 0, false, "12 Elm St, Salem OR"},
        {core::kBuilding, 10, 0, true, "12 Elm St"},
        {core::kBuilding, 11, 0, false, ""}, // no city
        {core::kUnit, 21, 0, false, "12 Elm St A"},
        {core::kActivities, 10, 0, false, ""},
        {-1, 10, 0, false, ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(core::GetDescription(c.kind, c.id, c.maxLength, c.shortForm), c.line)
            << c.kind << " " << c.id;
    }
    core::App().Connection.Close();
    EXPECT_EQ(core::GetDescription(core::kAccount, 60), "");
}

/// "text=id" of each row, the selected one in brackets.
std::string AsText(const ChoiceList& list) {
    std::string text;
    for (std::size_t i = 0; i < list.Rows().size(); ++i) {
        const std::string row = list.Rows()[i].text + "=" + std::to_string(list.Rows()[i].id);
        if (i > 0) text += " | ";
        text += list.Selected() == i ? "[" + row + "]" : row;
    }
    return text;
}

TEST_F(Descriptions, NameEveryRecordThatAListMustShow) {
    Run("UPDATE Tenant SET FirstName = NULL WHERE IdTenant = 31");
    Run("UPDATE Tenant SET LastName = NULL, FirstName = NULL WHERE IdTenant = 32");
    Run("UPDATE Unit SET Unit = NULL WHERE IdUnit = 21");
    Run("INSERT INTO Transactions (IdTransaction) VALUES (70)");
    struct Case {
        int kind;
        std::int32_t id;
        std::string_view name;
        bool exists;
    };
    for (const Case& c : {
             Case{core::kTenant, 30, "Smith, John Q", true},
             Case{core::kTenant, 31, "O'Brien", true},
             Case{core::kTenant, 32, "Tenant no. 32", true},
             Case{core::kTenant, 33, "Tenant no. 33 (deleted)", false},
             Case{core::kLease, 40, "Smith, 12 Elm St B", true},
             Case{core::kUnit, 21, "12 Elm St", true},
             Case{core::kVendorAccount, 61, "Al Owner", true},
             Case{core::kMortgageeAccount, 99, "Account no. 99 (deleted)", false},
             Case{core::kSingleUnitBuilding, 10, "12 Elm St", true},
             Case{core::kMortgage, 51, "Mortgage no. 51", true},
             Case{core::kActivities, 7, "Activities no. 7", false},
             Case{core::kTransaction, 70, "Transaction no. 70", true},
             Case{core::kTransaction, 71, "Transaction no. 71 (deleted)", false},
             Case{core::kTenant, 0, "", false},
         }) {
        EXPECT_EQ(core::NameOfRecord(c.kind, c.id), c.name);
        EXPECT_EQ(core::RecordExists(c.kind, c.id), c.exists) << c.name;
    }
}

TEST_F(Lists, ARecordWithoutATextEndsTheFillingUnlessItIsNamed) {
    Run("UPDATE Tenant SET FirstName = NULL WHERE IdTenant = 31");
    ChoiceList list;
    EXPECT_THROW(core::FillList(core::kTenant, list), platform::Error);
    EXPECT_EQ(AsText(list), "");
    core::FillList(core::kTenant, list, {.selectedId = 30, .nameNulls = true});
    EXPECT_EQ(AsText(list), "O'Brien=31 | [Smith, John Q=30] | Zu, Li=32");
}

TEST_F(Lists, OfferTheRecordsOfAKindInTheOrderOfTheirText) {
    struct Case {
        int kind;
        core::FillOptions options;
        std::string_view rows;
    };
    const Case cases[] = {
        {core::kAccount, {}, "[Al Owner=61] | Jo Owner=62 | River Bank=60"},
        {core::kOwner, {.selectedId = 62}, "Al Owner=61 | [Jo Owner=62]"},
        {core::kBankAccount, {}, "[River Bank=60]"},
        {core::kUtilityAccount, {.addNone = true}, "[[ No Account Selected ]=0]"},
        {core::kUtilityAccount, {}, ""},
        {core::kLease, {.addNone = true}, "[[ No Lease Selected ]=0] | Smith, 12 Elm St B=40"},
        {core::kTenant, {.selectedId = 30}, "O'Brien, Ann=31 | [Smith, John Q=30] | Zu, Li=32"},
        {core::kAppliance, {.parentId = 20}, "[Stove=70]"},
        {core::kAppliance, {}, ""},
        {core::kRoom, {.parentId = 21}, ""},
        {core::kBuilding, {}, "[12 Elm St=10] | Oak Rd=11"},
        {core::kMultiUnitBuilding, {}, "[12 Elm St=10]"},
        {core::kSingleUnitBuilding, {}, "[Oak Rd=11]"},
        {core::kUnit, {.parentId = 10}, "[A=21] | B=20"},
        {core::kUnit, {.selectedId = 22}, "12 Elm St A=21 | 12 Elm St B=20 | [Oak Rd 1=22]"},
        {core::kDeposit, {.addNone = true}, ""},
    };
    for (const Case& c : cases) {
        ChoiceList list;
        core::FillList(c.kind, list, c.options);
        EXPECT_EQ(AsText(list), c.rows) << c.kind;
    }

    core::Config().ShowAllAccounts = true;
    ChoiceList owners;
    core::FillList(core::kOwner, owners);
    EXPECT_EQ(owners.Rows().size(), 3U);
}

TEST_F(Lists, CategoriesHaveNoNoneRow) {
    Run("DELETE * FROM TransCategory");
    Run("INSERT INTO TransCategory (Category, IEN) VALUES ('Rent', 1)");
    ChoiceList list;
    core::FillList(core::kTransCategory, list, {.addNone = true});
    EXPECT_EQ(AsText(list), "[Rent=1]");
}

TEST_F(Lists, ARefreshKeepsTheSelectedRecordUnderItsNewText) {
    ChoiceList list;
    core::FillList(core::kAccount, list, {.selectedId = 61});
    Run("UPDATE Account SET ShowAs = 'Zoe Owner' WHERE IdAccount = 61");
    core::FillList(core::kAccount, list);
    EXPECT_EQ(AsText(list), "Jo Owner=62 | River Bank=60 | [Zoe Owner=61]");
    EXPECT_EQ(list.Text(), "Zoe Owner");

    Run("DELETE * FROM Account WHERE IdAccount = 61");
    core::FillList(core::kAccount, list);
    EXPECT_EQ(core::GetSelectedId(list), 62);
}

TEST_F(Lists, ATypedTextIsKeptWhenTold) {
    ChoiceList list;
    list.SetText("typed");
    core::FillList(core::kAccount, list, {.keepText = true});
    EXPECT_EQ(list.Text(), "typed");
    EXPECT_EQ(core::GetSelectedId(list), 0);
    core::FillList(core::kAccount, list);
    EXPECT_EQ(list.Text(), "Al Owner");
}

TEST(ChoiceLists, AreFilledFromCommasAndSelectedByIdOrText) {
    ChoiceList list;
    core::SelectById(list, 1, {.selectFirst = true});
    EXPECT_EQ(core::GetSelectedId(list), 0);

    core::FillFromCommaList(list, " a,, ,b c ,");
    EXPECT_EQ(AsText(list), " a=0 | b c =0");
    list.Clear();
    list.Add("One", 1);
    list.Add("Two", 2);
    list.Add("two", 3);

    core::SelectById(list, 9);
    EXPECT_EQ(AsText(list), "One=1 | Two=2 | two=3");
    core::SelectByText(list, "TWO");
    EXPECT_EQ(AsText(list), "One=1 | [Two=2] | two=3");
    core::SelectById(list, 9);
    EXPECT_EQ(core::GetSelectedId(list), 2);
    core::SelectByText(list, "gone");
    EXPECT_EQ(core::GetSelectedId(list), 2);
    core::SelectByText(list, "gone", {.setText = true});
    EXPECT_EQ(list.Text(), "gone");
    EXPECT_EQ(core::GetSelectedId(list), 0);
    core::SelectByText(list, "gone", {.selectFirst = true});
    EXPECT_EQ(core::GetSelectedId(list), 1);
    core::SelectById(list, 3);
    EXPECT_EQ(list.Text(), "two");
    core::SelectById(list, 9, {.selectFirst = true});
    EXPECT_EQ(core::GetSelectedId(list), 1);
}

} // namespace
