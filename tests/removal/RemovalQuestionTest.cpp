#include <gmock/gmock.h>

#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "removal/DeleteRecord.h"
#include "removal/PortfolioFixture.h"
#include "removal/RemovalTable.h"
#include "support/ScriptedDialogs.h"

namespace {

using removal::Confirm;
using removal::DeleteRecord;
using testing::IsEmpty;

struct QuestionCase {
    core::RecordKind kind;
    std::int32_t id;
    std::string text;
    std::string title = "Confirm Delete";
};

class RemovalQuestions : public tests::Portfolio {};

TEST_F(RemovalQuestions, SayWhatGoesAndANoLeavesEverything) {
    const std::string end = "will be lost.\n\nDo you wish to continue?";
    const std::vector<QuestionCase> cases = {
        {core::kLease, 700, "Delete selected Lease?"},
        {core::kMortgage, 900, "Delete selected Mortgage?"},
        {core::kWorkOrder, 600, "Delete selected work order?"},
        {core::kIncident, 630, "Delete selected Incident?"},
        {core::kAppliance, 510, "Delete selected Appliance?"},
        {core::kRoom, 500, "Delete selected room?"},
        {core::kTransaction, 801, "Delete selected transaction?"},
        {core::kMileage, 930, "Delete selected Mileage entry?"},
        {core::kOwner, 420, "Delete selected Owner?"},
        {core::kManager, 430, "Delete selected Manager?"},
        {core::kAutoEvent, 920, "Delete selected Auto Event?"},
        {core::kContent, 520, "Delete selected Content?"},
        {core::kSvcContract, 620, "Delete selected service contract?"},
        {core::kMortgageLog, 910, "Delete selected Mortgage charge?"},
        {core::kWorkOrderHistory, 610, "Delete selected Work Order History?"},
        {core::kFileObject, 670, "Delete selected file link?"},
        {core::kDocument, 660, "Delete selected Document?"},
        {core::kRentLog, 710, "Delete selected item?"},
        {removal::kAnalysis, 681, "Delete selected Analysis?"},
        {removal::kNoteAnalysis, 682, "Delete selected Note Analysis?"},
        {core::kAccount, 401,
         "This account is linked to the following critical items:\n\n"
         "2 Owner Link(s) to Properties\n"
         "These items will be removed. Also, any other references to this account.\n" +
             end},
        {core::kAccount, 400,
         "Removing this account will cause any references to it to be lost.\n\n"
         "Do you wish to continue?"},
        {core::kTenant, 300,
         "This tenant is linked to the following critical items:\n\n"
         "1 Lease(s)\n"
         "These items will be removed. Also, any other references to this account.\n" +
             end,
         "Confirm Removal"},
        {core::kTenant, 304,
         "Removing this tenant will cause any references to it to be lost.\n\n"
         "Do you wish to continue?",
         "Confirm Removal"},
        {core::kUnit, 200,
         "This unit is linked to the following critical items:\n\n"
         "2 Room(s)\n2 Appliance(s)\n1 Content(s)\n1 Lease(s)\n"
         "These items will be removed. Also, any other references to this unit.\n" +
             end},
        {core::kUnit, 204,
         "Removing this unit will cause any references to it to be lost.\n\n"
         "Do you wish to continue?"},
        {core::kBuilding, 100,
         "Removing a building will also remove all units associated to the building, and all\n"
         "leases for these units and related records.\n\n"
         "Do you wish to continue?"},
    };
    for (const QuestionCase& one : cases) {
        support::ScriptedDialogs dialogs({false});
        EXPECT_FALSE(DeleteRecord(one.kind, one.id)) << one.text;
        ASSERT_EQ(1U, dialogs.Heard().size()) << one.text;
        EXPECT_EQ(one.title, dialogs.Heard()[0].title);
        EXPECT_THAT(dialogs.Heard()[0].text, testing::StartsWith(one.text));
    }
    EXPECT_THAT(Changes(), IsEmpty());
}

TEST_F(RemovalQuestions, NameTheRecord) {
    Run("UPDATE Room SET RoomType = 'Attic' WHERE IdRoom = 500");
    Run("UPDATE RentLog SET DatePosted = '05/01/2024', Category = 'Rent' WHERE IdRentLog = 710");
    Run("UPDATE Account SET ShowAs = 'Al Owner'");
    for (const auto& [kind, id, text] :
         {std::tuple{core::kRoom, 500, "Delete selected room?\n\nAttic"},
          std::tuple{core::kRentLog, 710, "Delete selected item?\n\n05/01/2024, Rent"},
          std::tuple{core::kOwner, 420, "Delete selected Owner?\n\nAl Owner"},
          std::tuple{core::kMileage, 930, "Delete selected Mileage entry?"}}) {
        const support::ScriptedDialogs dialogs({false});
        EXPECT_FALSE(DeleteRecord(kind, id));
        EXPECT_EQ(dialogs.Heard().at(0).text, text);
    }
}

TEST_F(RemovalQuestions, CountBothLinksOfAnAccount) {
    Run("UPDATE ManagerLink SET IdAccount = 401");
    support::ScriptedDialogs dialogs({true});
    EXPECT_TRUE(DeleteRecord(core::kAccount, 401));
    EXPECT_THAT(dialogs.Heard().at(0).text,
                testing::HasSubstr("\n\n1 Management Link(s) to Properties\n"
                                   "2 Owner Link(s) to Properties\nThese items"));
}

TEST_F(RemovalQuestions, AreNotAskedAgainstThePreferenceButAPaymentAsksItsOwn) {
    core::Preferences().ConfirmDelete = false;
    support::ScriptedDialogs dialogs({false});
    EXPECT_TRUE(DeleteRecord(core::kUnit, 200));
    EXPECT_THAT(dialogs.Heard(), IsEmpty());
    EXPECT_TRUE(DeleteRecord(core::kTransaction, 801));
    ASSERT_EQ(1U, dialogs.Heard().size());
    EXPECT_EQ("Confirm Removal", dialogs.Heard()[0].title);
}

TEST_F(RemovalQuestions, TakeTheirStepBeforeABuildingGoes) {
    int steps = 0;
    bool mayGo = false;
    removal::SetBeforeBuilding([&] {
        ++steps;
        return mayGo;
    });
    // Unit 200 has a neighbour, 202 is the only one of its building.
    EXPECT_FALSE(DeleteRecord(core::kBuilding, 100, Confirm::DontAsk));
    EXPECT_FALSE(DeleteRecord(core::kUnit, 202, Confirm::DontAsk));
    EXPECT_EQ(steps, 2);
    EXPECT_THAT(Changes(), IsEmpty());
    EXPECT_TRUE(DeleteRecord(core::kUnit, 200, Confirm::DontAsk));
    EXPECT_EQ(steps, 2);
    mayGo = true;
    EXPECT_TRUE(DeleteRecord(core::kBuilding, 100, Confirm::DontAsk));
    EXPECT_EQ(steps, 3);
    removal::SetBeforeBuilding({});
    EXPECT_TRUE(DeleteRecord(core::kBuilding, 101, Confirm::DontAsk));
}

} // namespace
