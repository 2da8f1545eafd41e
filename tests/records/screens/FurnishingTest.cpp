#include "records/screens/Fields.h"
#include "records/screens/frmAppliance.h"
#include "records/screens/frmContent.h"
#include "records/screens/frmRoom.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmAppliance;
using records::screens::frmContent;
using records::screens::frmRoom;

/// The common behaviour of the three screens: a new one of unit 20 takes every field, shows it
/// again, and is changed under its number.
struct Furnishing {
    std::string_view table;
    std::string_view idField;
    std::vector<FieldEntry> fields;
    const char* required; ///< the control that can't stay blank
    std::string_view refusal;
    std::string_view newCaption;
    std::string_view caption;
};

const Furnishing kRoom = {"Room",
                          "IdRoom",
                          {{"cboUnit", "12 Elm St B", "IdUnit", "20"},
                           {"cboRoomType", "Bob's \"den\"", "RoomType", ""},
                           {"txtDimensions", "10' x 12'", "Dimensions", ""},
                           {"txtCeiling", "8 ft", "Ceiling", ""},
                           {"txtFlooring", "Oak", "Flooring", ""},
                           {"txtPaintCode", "SW-6204", "PaintCode", ""},
                           {"txtLighting", "2 lamps", "Lighting", ""},
                           {"txtFixtures", "Fan", "Fixtures", ""},
                           {"txtClosets", "1", "Closets", ""},
                           {"txtDoors", "2", "Doors", ""},
                           {"txtWindows", "3", "Windows", ""},
                           {"txtOutlets", "4", "Outlets", ""},
                           {"chkPhone", "x", "Phone", "True"},
                           {"chkCable", "x", "Cable", "True"},
                           {"chkNetwork", "x", "Network", "True"},
                           {"txtmNotes", "North side", "Notes", ""}},
                          "cboRoomType",
                          "A room type must be specified.\n",
                          "Adding New Room",
                          "Room: Bob's \"den\""};

const Furnishing kContent = {"Content",
                             "IdContent",
                             {{"cboUnit", "12 Elm St B", "IdUnit", "20"},
                              {"txtDescription", "Bob's \"red\" sofa", "Description", ""},
                              {"cboManufacturer", "O'Neil & Co", "Manufacturer", ""},
                              {"txtModel", "R2", "Model", ""},
                              {"txtSN", "007", "SN", ""},
                              {"txtValue", "1234.5", "Value", "1234.5"},
                              {"txtmNotes", "Left arm worn", "Notes", ""}},
                             "txtDescription",
                             "A description must be entered.\n",
                             "Adding New Content",
                             "Content: Bob's \"red\" sofa"};

const Furnishing kAppliance = {"Appliance",
                               "IdAppliance",
                               {{"cboUnit", "12 Elm St B", "IdUnit", "20"},
                                {"cboApplianceType", "Stove", "ApplianceType", ""},
                                {"cboManufacturer", "Ace", "Manufacturer", ""},
                                {"txtModel", "M-1", "Model", ""},
                                {"txtSN", "007", "SN", ""},
                                {"txtColor", "White", "Color", ""},
                                {"txtCapacity", "30 in", "Capacity", ""},
                                {"cboVendor", "Ann's Shop", "IdVendor", "63"},
                                {"txtSource", "Auction", "Source", ""},
                                {"dpPurchaseDate", "02/29/2024", "PurchaseDate", ""},
                                {"txtCost", "899.99", "Cost", ""},
                                {"txtWarranty", "2 years", "Warranty", ""},
                                {"cboDeprMethod", "Straight Line", "DeprMethod", ""},
                                {"txtDeprTerm", "5", "DeprTerm", ""},
                                {"txtmNotes", "Gas", "Notes", ""}},
                               "cboApplianceType",
                               "An appliance type must be specified.\n",
                               "Adding New Appliance",
                               "Appliance: Ace Stove"};

class FurnishingTest : public ScreenTest {
  protected:
    FurnishingTest() {
        Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) "
            "VALUES (63, 'Ann''s Shop', 'Vendor')");
    }
    template <class Screen>
    static QPointer<Screen> Open(std::int32_t id, std::int32_t unit = 20) {
        return Show<Screen>(id, unit);
    }
    template <class Screen>
    void LivesThrough(const Furnishing& kind) {
        SCOPED_TRACE(kind.table);
        auto form = Open<Screen>(0);
        EXPECT_EQ(form->windowTitle().toStdString(), kind.newCaption);
        EXPECT_EQ(Text(*form, "cboUnit"), "12 Elm St B");
        EXPECT_FALSE(form->Dirty());
        ClickAction(*form, "APPLY");
        ClickAction(*form, "CLOSE");
        EXPECT_EQ(Heard(), Said{kRoll + std::string(kind.refusal)}) << "APPLY is not available";

        support::Enter(*form, kind.fields);
        EXPECT_TRUE(form->Dirty());
        ClickAction(*form, "APPLY");
        EXPECT_EQ(Heard(), Said{});
        EXPECT_EQ(form->windowTitle().toStdString(), kind.caption);
        EXPECT_EQ(form->Id(), form->OpenRecordId());
        const std::string where = std::string(kind.idField) + " = " + std::to_string(form->Id());
        EXPECT_EQ(StoredFaults(kind.table, where, kind.fields), Said{});

        Type(Find<QWidget>(*form, "txtmNotes"), "Changed");
        ClickAction(*form, "CLOSE");
        SettleEvents();
        EXPECT_FALSE(form);
        std::vector<FieldEntry> fields = kind.fields;
        fields.back().text = "Changed";
        EXPECT_EQ(StoredFaults(kind.table, where, fields), Said{});
        const std::int32_t id = std::stoi(where.substr(where.rfind(' ')));
        form = Open<Screen>(id, 21);
        for (FieldEntry& field : fields)
            if (field.text == "1234.5") field.text = "1,234.50";
        EXPECT_EQ(ShownFaults(*form, fields), Said{}) << "the parent changes nothing";
        EXPECT_FALSE(form->Dirty());
    }
};

TEST_F(FurnishingTest, AreEnteredChangedAndReopened) {
    LivesThrough<frmRoom>(kRoom);
    LivesThrough<frmContent>(kContent);
    LivesThrough<frmAppliance>(kAppliance);
}

TEST_F(FurnishingTest, AnApplianceStandsInAUnit) {
    const auto form = Open<frmAppliance>(0, 0);
    EXPECT_EQ(Text(*form, "cboUnit"), "[ No Unit Selected ]");
    EXPECT_EQ(Text(*form, "cboDeprMethod"), "Straight Line");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "No Building / Unit has been selected.\n"
                                    "An appliance type must be specified.\n"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Appliance"), "1");
}

TEST_F(FurnishingTest, WhatWasTypedIsOfferedTheNextTime) {
    auto form = Open<frmRoom>(0);
    Type(Find<QComboBox>(*form, "cboRoomType"), "Sauna");
    ClickAction(*form, "CLOSE");
    form = Open<frmRoom>(0);
    const QComboBox& types = Find<QComboBox>(*form, "cboRoomType");
    EXPECT_EQ(types.count(), 1);
    EXPECT_EQ(types.itemText(0), QStringLiteral("Sauna"));
    EXPECT_EQ(types.currentText(), QString()) << "but a new room has no type yet";
}

TEST_F(FurnishingTest, UnitsAndVendorsThatChangeAreOfferedAtOnce) {
    const auto form = Open<frmAppliance>(70);
    Run("UPDATE Unit SET Unit = 'Z' WHERE IdUnit = 20");
    core::NotifyAll(core::kUnit, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "cboUnit"), "12 Elm St Z");
    Run("UPDATE Account SET AccountType = 'Vendor' WHERE IdAccount = 60");
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    EXPECT_EQ(Find<QComboBox>(*form, "cboVendor").count(), 3);
    EXPECT_FALSE(form->Dirty());
}

TEST_F(FurnishingTest, AUnitThatIsNotOfferedIsNotLost) {
    Run("UPDATE Room SET IdUnit = 999 WHERE IdRoom = 80");
    auto room = Open<frmRoom>(80);
    EXPECT_EQ(Text(*room, "cboUnit"), "Unit no. 999 (deleted)");
    core::NotifyAll(core::kUnit, core::kRecordsChanged, 0);
    ClickAction(*room, "CLOSE");
    EXPECT_EQ(Ask("SELECT IdUnit FROM Room WHERE IdRoom = 80"), "999");
    Run("UPDATE Unit SET Unit = NULL WHERE IdUnit = 20");
    const auto stove = Open<frmAppliance>(70);
    EXPECT_EQ(Text(*stove, "cboUnit"), "12 Elm St");
    EXPECT_TRUE(Heard().empty());
    ClickAction(*stove, "CLOSE");
    EXPECT_EQ(Ask("SELECT IdUnit FROM Appliance WHERE IdAppliance = 70"), "20");
}

} // namespace
} // namespace support
