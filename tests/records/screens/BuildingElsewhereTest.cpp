#include "core/Lookups.h"
#include "records/screens/frmBuilding.h"
#include "removal/DeleteRecord.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmBuilding;

/// The building's screen while its rows are changed by another screen or program.
class BuildingElsewhere : public ScreenTest {
  protected:
    static QPointer<frmBuilding> Open(std::int32_t building, std::int32_t unit = 0) {
        return Show<frmBuilding>(building, unit, 0);
    }
};

TEST_F(BuildingElsewhere, AStatusThatALeaseSetIsNotWrittenBack) {
    for (const bool dirty : {false, true}) {
        Run("UPDATE Unit SET Status = 'Hold' WHERE IdUnit = 20");
        const auto form = Open(0, 20);
        if (dirty) Type(Find<QLineEdit>(*form, "txtFaces"), "West");
        core::SetUnitStatus(20, "Leased");
        EXPECT_EQ(form->Dirty(), dirty);
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Ask("SELECT Status FROM Unit WHERE IdUnit = 20"), "Leased") << dirty;
        SettleEvents();
    }
    EXPECT_EQ(Ask("SELECT Faces FROM Unit WHERE IdUnit = 20"), "West");
}

TEST_F(BuildingElsewhere, WhatWasDeletedElsewhereComesBackUnderItsNumbers) {
    const auto form = Open(0, 22);
    removal::DeleteRecord(core::kUnit, 22, removal::Confirm::DontAsk);
    EXPECT_EQ(Ask("SELECT Count(*) FROM Building WHERE IdBuilding = 11"), "0");
    EXPECT_EQ(Text(*form, "txtAddress"), "Oak Rd");
    Answer({true}); // to whether it is to be saved again
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Address FROM Building WHERE IdBuilding = 11"), "Oak Rd");
    EXPECT_EQ(Ask("SELECT Unit FROM Unit WHERE IdUnit = 22"), "1");
}

TEST_F(BuildingElsewhere, AUnitThatWasMovedElsewhereStaysThere) {
    const auto form = Open(10);
    ASSERT_EQ(form->UnitId(), 21);
    Type(Find<QLineEdit>(*form, "txtFaces"), "East");
    Run("UPDATE Unit SET IdBuilding = 11 WHERE IdUnit = 21");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT IdBuilding & ' ' & Faces FROM Unit WHERE IdUnit = 21"), "11 East");
    EXPECT_EQ(form->UnitId(), 20) << "the building's other one";
    Run("UPDATE Unit SET IdBuilding = 11 WHERE IdUnit = 20");
    core::NotifyAll(core::kUnit, core::kRecordsChanged, 0);
    EXPECT_EQ(form->UnitId(), 0);
    const std::string units = Ask("SELECT Count(*) FROM Unit");
    Type(Find<QLineEdit>(*form, "txtAddress"), "1 Empty Rd");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT Address FROM Building WHERE IdBuilding = 10"), "1 Empty Rd");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit"), units) << "none is added that nobody entered";
    Type(Find<QLineEdit>(*form, "txtFaces"), "West");
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Ask("SELECT Faces FROM Unit WHERE IdBuilding = 10"), "West");
}

TEST_F(BuildingElsewhere, AUnitDeletedElsewhereComesBackOnlyIfTheUserMeansIt) {
    const auto form = Open(10);
    Type(Find<QLineEdit>(*form, "txtFaces"), "East");
    removal::DeleteRecord(core::kUnit, 21, removal::Confirm::DontAsk);
    for (const bool answer : {false, true}) {
        Answer({answer});
        ClickAction(*form, "APPLY");
        EXPECT_EQ(Heard(),
                  Said{"Deleted: This unit was deleted while it was open here. Save it again?"});
        EXPECT_EQ(Ask("SELECT Count(*) FROM Unit WHERE IdUnit = 21"), answer ? "1" : "0");
    }
    EXPECT_EQ(Ask("SELECT Unit & ' ' & Faces FROM Unit WHERE IdUnit = 21"), "A East");
}

} // namespace
} // namespace support
