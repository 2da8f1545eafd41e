#include "records/WorkOrderRules.h"

#include <gtest/gtest.h>

#include "core/Lists.h"
#include "core/RecordsFixture.h"
#include "records/SvcContractRules.h"

namespace {

using Lines = std::vector<std::string>;

TEST(WorkOrderRules, AskForADescription) {
    for (const char* blank : {"", "   "}) {
        EXPECT_EQ(Lines{"A description must be entered."}, records::WorkOrderErrors(blank));
        EXPECT_EQ(Lines{"A description must be entered."}, records::HistoryErrors(blank));
    }
    EXPECT_TRUE(records::WorkOrderErrors("Fix").empty());
    EXPECT_TRUE(records::HistoryErrors("Called").empty());
}

TEST(SvcContractRules, AskForABuildingAndThenAVendor) {
    EXPECT_EQ((Lines{"A building must be selected.", "A Vendor must be selected."}),
              records::SvcContractErrors(0, 0));
    EXPECT_EQ(Lines{"A Vendor must be selected."}, records::SvcContractErrors(10, 0));
    EXPECT_EQ(Lines{"A building must be selected."}, records::SvcContractErrors(0, 60));
    EXPECT_TRUE(records::SvcContractErrors(10, 60).empty());
}

class MaintenanceLists : public tests::CoreRecords {
  protected:
    static Lines Texts(const core::ChoiceList& list) {
        Lines texts;
        for (const core::Choice& row : list.Rows())
            texts.push_back(row.text);
        return texts;
    }
};

TEST_F(MaintenanceLists, OfferTheOwnersOfTheUnitsBuilding) {
    Run("INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount) VALUES (1, 10, 62)");
    Run("INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount) VALUES (2, 10, 61)");
    Run("INSERT INTO OwnerLink (IdOwnerLink, IdBuilding, IdAccount) VALUES (3, 11, 60)");
    core::ChoiceList list;
    records::FillOwnersOfUnit(list, 20);
    EXPECT_EQ((Lines{"[ No Account Selected ]", "Al Owner", "Jo Owner"}), Texts(list));
    EXPECT_EQ("[ No Account Selected ]", list.Text());
    records::FillOwnersOfUnit(list, 21, 62);
    EXPECT_EQ("Jo Owner", list.Text());
    records::FillOwnersOfUnit(list, 20);
    EXPECT_EQ("Jo Owner", list.Text()) << "the selection stays";
    records::FillOwnersOfUnit(list, 22);
    EXPECT_EQ((Lines{"[ No Account Selected ]", "River Bank"}), Texts(list));
    EXPECT_EQ(0, core::GetSelectedId(list));
    records::FillOwnersOfUnit(list, 0);
    EXPECT_EQ(Lines{"[ No Account Selected ]"}, Texts(list));
}

TEST_F(MaintenanceLists, OfferTheAppliancesOfAllUnitsOfABuilding) {
    Run("UPDATE Appliance SET SN = '007' WHERE IdAppliance = 70");
    Run("INSERT INTO Appliance (IdAppliance, IdUnit, ApplianceType) VALUES (71, 21, 'Fridge')");
    Run("INSERT INTO Appliance (IdAppliance, IdUnit, ApplianceType) VALUES (72, 22, 'Dryer')");
    core::ChoiceList list;
    records::FillAppliancesOfBuilding(list, 10, 71);
    EXPECT_EQ((Lines{"[ No Appliance Selected ]", "Ace Stove 007", " Fridge "}), Texts(list));
    EXPECT_EQ(71, core::GetSelectedId(list));
    records::FillAppliancesOfBuilding(list, 11);
    EXPECT_EQ((Lines{"[ No Appliance Selected ]", " Dryer "}), Texts(list));
    EXPECT_EQ(0, core::GetSelectedId(list));
}

} // namespace
