#include "core/Lists.h"

#include <gmock/gmock.h>

#include "core/Configuration.h"
#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace {

using core::ChoiceList;
using support::Case;
using support::ForEachCase;
using Descriptions = tests::CoreRecords;
using Lists = tests::CoreRecords;

constexpr const char* kCases = VESTREL_TEST_DATA "/lists.cases";

TEST_F(Descriptions, TellARecordInOneLine) {
    ForEachCase(kCases, "descriptions", [](const Case& each) {
        EXPECT_EQ(core::GetDescription(each.Number<core::RecordKind>("kind"),
                                       each.Number<std::int32_t>("id"),
                                       each.Number<std::size_t>("length"), each.IsYes("short")),
                  each["line"]);
    });
    core::App().Connection.Close();
    EXPECT_EQ(core::GetDescription(core::kAccount, 60), "");
}

/// "text=id" of each row, the selected one in brackets.
std::string AsText(const ChoiceList& list) {
    std::string text;
    for (std::size_t i = 0; i < list.Rows().size(); ++i) {
        const std::string row = list.Rows()[i].text + "=" + std::to_string(list.Rows()[i].id);
        if (i > 0) text += "; ";
        text += list.Selected() == i ? "[" + row + "]" : row;
    }
    return text;
}

TEST_F(Descriptions, NameEveryRecordThatAListMustShow) {
    Run("UPDATE Tenant SET FirstName = NULL WHERE IdTenant = 31");
    Run("UPDATE Tenant SET LastName = NULL, FirstName = NULL WHERE IdTenant = 32");
    Run("UPDATE Unit SET Unit = NULL WHERE IdUnit = 21");
    Run("INSERT INTO Transactions (IdTransaction) VALUES (70)");
    ForEachCase(kCases, "names", [](const Case& each) {
        const core::RecordKind kind = each.Number<core::RecordKind>("kind");
        const auto id = each.Number<std::int32_t>("id");
        EXPECT_EQ(core::NameOfRecord(kind, id), each["name"]);
        EXPECT_EQ(core::RecordExists(kind, id), each.IsYes("exists"));
    });
}

TEST_F(Lists, ARecordWithoutATextEndsTheFillingUnlessItIsNamed) {
    Run("UPDATE Tenant SET FirstName = NULL WHERE IdTenant = 31");
    ChoiceList list;
    EXPECT_THROW(core::FillList(core::kTenant, list), platform::Error);
    EXPECT_EQ(AsText(list), "");
    core::FillList(core::kTenant, list, {.selectedId = 30, .nameNulls = true});
    EXPECT_EQ(AsText(list), "O'Brien=31; [Smith, John Q=30]; Zu, Li=32");
}

TEST_F(Lists, OfferTheRecordsOfAKindInTheOrderOfTheirText) {
    ForEachCase(kCases, "lists", [](const Case& each) {
        ChoiceList list;
        core::FillList(each.Number<core::RecordKind>("kind"), list,
                       {.selectedId = each.Number<std::int32_t>("selected"),
                        .addNone = each.IsYes("none"),
                        .parentId = each.Number<std::int32_t>("parent")});
        EXPECT_EQ(AsText(list), each["rows"]);
    });

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
    EXPECT_EQ(AsText(list), "Jo Owner=62; River Bank=60; [Zoe Owner=61]");
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
    EXPECT_EQ(AsText(list), " a=0; b c =0");
    list.Clear();
    list.Add("One", 1);
    list.Add("Two", 2);
    list.Add("two", 3);

    core::SelectById(list, 9);
    EXPECT_EQ(AsText(list), "One=1; Two=2; two=3");
    core::SelectByText(list, "TWO");
    EXPECT_EQ(AsText(list), "One=1; [Two=2]; two=3");
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
