#include <algorithm>
#include <map>

#include "core/Configuration.h"
#include "core/EditRecord.h"
#include "core/binding/Binding.h"
#include "core/binding/Tags.h"
#include "core/forms/OpenForms.h"
#include "platform/dialogs/Desktop.h"
#include "records/screens/BuildingFields.h"
#include "records/screens/frmBuilding.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using records::screens::frmBuilding;
using tests::kBuildingFields;
using tests::kUnitFields;

const std::string kConvert =
    "Continue?: To add an additional unit this property will convert to a multi unit building. "
    "Please read the help file\n"
    "section explaining how these are handled differently so you can understand how to correctly "
    "manage these\n"
    "types of properties within Vestrel.\n"
    "Do you wish to continue?";

class BuildingTest : public ScreenTest {
  protected:
    BuildingTest() {
        Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) "
            "VALUES (65, 'City Light', 'Utility')");
        Run("INSERT INTO Account (IdAccount, ShowAs, AccountType) "
            "VALUES (66, 'Sure & Sons', 'Insurance')");
    }
    static QPointer<frmBuilding> Open(std::int32_t building, std::int32_t unit = 0,
                                      std::int32_t fromUnit = 0) {
        return Show<frmBuilding>(building, unit, fromUnit);
    }
    static std::string Title(const frmBuilding& form) {
        return Find<QLabel>(form, "lblTitle").text().toStdString();
    }
    static void Choose(const frmBuilding& form, const char* action) {
        Find<QAction>(form, action).trigger();
    }
    static std::string Units(const frmBuilding& form) {
        const QComboBox& list = Find<QComboBox>(form, "cboSelUnit");
        if (!list.isVisible()) return "hidden";
        std::string units;
        for (int row = 0; row < list.count(); ++row) {
            units +=
                (row == list.currentIndex() ? "*" : "") + list.itemText(row).toStdString() + " ";
        }
        return units;
    }
    static void ChooseUnit(const frmBuilding& form, const char* label) {
        QComboBox& list = Find<QComboBox>(form, "cboSelUnit");
        support::Choose(form, "cboSelUnit", label);
        Q_EMIT list.activated(list.currentIndex());
    }
    static int OpenBuildings() {
        int count = 0;
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (qobject_cast<frmBuilding*>(window) && window->isVisible()) ++count;
        }
        return count;
    }
};

TEST_F(BuildingTest, EveryFieldOfBothTablesIsBoundOnce) {
    const auto form = Open(0);
    std::map<std::string, int> bound;
    for (const QWidget* const control : core::binding::ControlsOf(*form)) {
        const std::string tag = core::binding::TagOf(*control);
        if (tag.find('.') != std::string::npos) ++bound[tag.substr(1)];
    }
    std::string faults;
    for (const std::string table : {"Building", "Unit"}) {
        platform::Recordset row;
        row.Open(core::App().Connection, "SELECT * FROM " + table);
        const Said unbound = {"Id" + table, "Multi", "Selected", "Ccount", "Distance"};
        for (std::size_t i = 0; i < row.FieldCount(); ++i) {
            const std::string field = row[i].Name();
            const bool isLink = table == "Unit" && field == "IdBuilding";
            const int wanted = isLink || std::ranges::count(unbound, field) > 0 ? 0 : 1;
            const int found = bound[table + "." + field];
            if (found != wanted) faults += table + "." + field + " ";
            bound.erase(table + "." + field);
        }
    }
    for (const auto& [field, count] : bound)
        faults += field + "? ";
    EXPECT_EQ(faults, "");
}

TEST_F(BuildingTest, ANewOneIsEnteredAndReopened) {
    core::Config().DefaultCounty = "Polk";
    core::Config().DefaultState = "OR";
    auto form = Open(0);
    core::Config().DefaultCounty.clear();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Single Unit Building"));
    EXPECT_EQ(Title(*form), "New Building (Press Apply to Save)");
    EXPECT_EQ(ShownFaults(*form, {{"txtDeprPeriod", "27.5", "", ""},
                                  {"cboDeprMethod", "Straight Line", "", ""},
                                  {"cboUnitStatus", "Hold", "", ""},
                                  {"cboHOAFrequency", "", "", ""},
                                  {"cboPurchFrom", "", "", ""},
                                  {"txtCounty", "Polk", "", ""},
                                  {"txtState", "OR", "", ""}}),
              Said{});
    EXPECT_EQ(Units(*form), "hidden");
    EXPECT_FALSE(form->Dirty());
    const QWidget& addDeposit = Find<QWidget>(Find<QWidget>(*form, "ucDeposits"), "cmdAdd");
    EXPECT_FALSE(addDeposit.isEnabled());
    support::Enter(*form, kBuildingFields);
    support::Enter(*form, kUnitFields);
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_TRUE(addDeposit.isEnabled()) << "records that belong to it can be added now";
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Building: 7 O'Hara's \"Row\""));
    EXPECT_EQ(Title(*form), "Editing Building: 7 O'Hara's \"Row\"");
    EXPECT_EQ(StoredFaults("Building", "IdBuilding = 1000", kBuildingFields), Said{});
    EXPECT_EQ(StoredFaults("Unit", "IdBuilding = 1000", kUnitFields), Said{});
    EXPECT_EQ(Ask("SELECT Multi FROM Building WHERE IdBuilding = 1000"), "False");
    EXPECT_EQ(Ask("SELECT Ccount FROM Unit WHERE IdUnit = 1001"), "0");

    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit WHERE IdBuilding = 1000"), "1");
    form = Open(0, 1001);
    EXPECT_EQ(form->OpenRecordId(), 1000) << "a unit opens its building";
    const auto shown = [&](std::vector<FieldEntry> fields) {
        for (FieldEntry& field : fields) {
            if (field.text == "250000.00") field.text = "250,000.00";
            if (field.text == "300000.00") field.text = "300,000.00";
            if (field.text == "200000.00") field.text = "200,000.00";
            if (field.text == "1000.00") field.text = "1,000.00";
        }
        return ShownFaults(*form, fields);
    };
    EXPECT_EQ(shown(kBuildingFields), Said{});
    EXPECT_EQ(shown(kUnitFields), Said{});
    EXPECT_FALSE(form->Dirty());
}

TEST_F(BuildingTest, WithoutAnAddressNothingIsWritten) {
    const auto form = Open(0);
    Type(Find<QLineEdit>(*form, "txtAddress"), "   ");
    Type(Find<QLineEdit>(*form, "txtUnit"), "7");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Heard(), Said{kRoll + "An address must be entered.\n"});
    EXPECT_EQ(Ask("SELECT Count(*) FROM Building"), "2");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit"), "3");
}

TEST_F(BuildingTest, BuildingAndUnitAreSavedBothOrNeither) {
    const auto form = Open(0);
    Type(Find<QLineEdit>(*form, "txtAddress"), "1 New Rd");
    Find<QLineEdit>(*form, "txtSqFt").setText(QStringLiteral("99999999"));
    ClickAction(*form, "CLOSE");
    const Said heard = Heard();
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard.front().substr(0, 9), "Vestrel: ") << "no unit is that large";
    EXPECT_EQ(Ask("SELECT Count(*) FROM Building"), "2");
    EXPECT_TRUE(form && form->Dirty());
    EXPECT_EQ(form->Id(), 0);
    Type(Find<QLineEdit>(*form, "txtSqFt"), "999");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit, Building WHERE Unit.IdBuilding = "
                  "Building.IdBuilding AND Address = '1 New Rd'"),
              "1");
}

TEST_F(BuildingTest, AnotherUnitIsChosenWithWhatWasChangedSaved) {
    const auto form = Open(10);
    EXPECT_EQ(Units(*form), "*A B ") << "the first one, since none was asked for";
    Type(Find<QLineEdit>(*form, "txtFaces"), "East");
    ChooseUnit(*form, "B");
    EXPECT_EQ(Ask("SELECT Faces FROM Unit WHERE IdUnit = 21"), "East");
    EXPECT_EQ(form->UnitId(), 20);
    EXPECT_EQ(ShownFaults(*form, {{"txtRent", "950.50", "", ""},
                                  {"txtFaces", "", "", ""},
                                  {"cboUnitStatus", "Hold", "", ""}}),
              Said{})
        << "an unset field doesn't show the other unit's";
    EXPECT_FALSE(form->Dirty());

    Find<QLineEdit>(*form, "txtAddress").clear();
    ChooseUnit(*form, "A");
    EXPECT_EQ(Heard(), Said{kRoll + "An address must be entered.\n"});
    EXPECT_EQ(Units(*form), "A *B ") << "refused changes keep the unit";
    EXPECT_EQ(form->UnitId(), 20);
}

TEST_F(BuildingTest, ASingleUnitBuildingIsConvertedThenUnitsAreAdded) {
    const auto form = Open(11);
    EXPECT_EQ(Units(*form), "hidden");
    Answer({false, true});
    Choose(*form, "mnuAddUnit");
    EXPECT_EQ(Heard(), Said{kConvert});
    EXPECT_EQ(Ask("SELECT Multi FROM Building WHERE IdBuilding = 11"), "False");
    EXPECT_FALSE(form->Dirty());
    Choose(*form, "mnuAddUnit");
    EXPECT_EQ(Ask("SELECT Multi FROM Building WHERE IdBuilding = 11"), "True");
    EXPECT_EQ(Ask("SELECT Count(*) FROM Unit WHERE IdBuilding = 11"), "1")
        << "the unit is added by asking again";
    EXPECT_EQ(Units(*form), "*1 ");
    Heard();
    Type(Find<QLineEdit>(*form, "txtBedrooms"), "4");
    Choose(*form, "mnuAddUnit");
    EXPECT_EQ(Heard(), Said{});
    EXPECT_EQ(Ask("SELECT Bedrooms FROM Unit WHERE IdUnit = 22"), "4") << "nothing typed is lost";
    EXPECT_EQ(Units(*form), "1 *<new> ");
    EXPECT_EQ(ShownFaults(*form, {{"txtUnit", "<new>", "", ""},
                                  {"txtBedrooms", "", "", ""},
                                  {"txtRent", "0.00", "", ""}}),
              Said{});
    Type(Find<QLineEdit>(*form, "txtUnit"), "");
    Choose(*form, "mnuAddUnit");
    EXPECT_EQ(Heard().front().substr(0, 21), "Unit Number Missing: ");
    EXPECT_EQ(Units(*form), " 1 *<new> ");
}

TEST_F(BuildingTest, ANewOneStartsAsACopyOfAnother) {
    Run("UPDATE Unit SET Bedrooms = '3' WHERE IdUnit = 20");
    const auto form = Open(0, 0, 20);
    EXPECT_EQ(form->Id(), 0);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Adding New Single Unit Building"));
    EXPECT_EQ(
        ShownFaults(*form, {{"txtAddress", "12 Elm St", "", ""}, {"txtBedrooms", "3", "", ""}}),
        Said{});
    EXPECT_FALSE(form->Dirty());
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT Multi FROM Building WHERE IdBuilding = 1000"), "False");
    EXPECT_EQ(Ask("SELECT Bedrooms FROM Unit WHERE IdBuilding = 1000"), "3");
    EXPECT_EQ(Ask("SELECT IdBuilding FROM Unit WHERE IdUnit = 20"), "10");
}

TEST_F(BuildingTest, TheEquityIsReckonedFromTheValueShown) {
    const auto form = Open(10);
    Type(Find<QLineEdit>(*form, "txtMktValue"), "300000");
    ClickAction(*form, "CALCEQUITY");
    EXPECT_EQ(Text(*form, "txtEquity"), "179,999.75");
    EXPECT_EQ(Ask("SELECT Equity FROM Building WHERE IdBuilding = 10"), "NULL");
    EXPECT_TRUE(form->Dirty());
}

TEST_F(BuildingTest, ADepreciationScheduleWantsABasisAndATerm) {
    const auto form = Open(10);
    ClickAction(*form, "SHOWDEPR");
    EXPECT_EQ(Heard(), Said{"Error: Depreciation basis must be greater than 0."});
    Type(Find<QLineEdit>(*form, "txtDeprBasis"), "100");
    ClickAction(*form, "SHOWDEPR");
    EXPECT_EQ(Heard(), Said{"Error: Depreciation term must be greater than 0."});
    Find<QLineEdit>(*form, "txtDeprPeriod").setText(QStringLiteral("1e999"));
    ClickAction(*form, "SHOWDEPR");
    EXPECT_EQ(Heard().size(), 1U);
}

TEST_F(BuildingTest, ThePeriodIsShownWithOneDecimal) {
    const auto form = Open(0);
    QLineEdit& period = Find<QLineEdit>(*form, "txtDeprPeriod");
    for (const auto& [typed, shown] : {std::pair{"39", "39.0"}, {".5", ".5"}, {"", ""}}) {
        Type(period, typed);
        Q_EMIT period.editingFinished();
        EXPECT_EQ(period.text(), QString::fromLatin1(shown));
    }
}

TEST_F(BuildingTest, ABuildingIsNeverOpenTwice) {
    for (const core::RecordKind kind : {core::kBuilding, core::kUnit})
        core::RegisterOpener(kind, records::screens::OpenBuilding);
    core::forms::RegisterOpenForms();
    core::EditRecord(core::kUnit, 20);
    EXPECT_EQ(OpenBuildings(), 1);
    core::EditRecord(core::kUnit, 21);
    core::EditRecord(core::kBuilding, 10);
    EXPECT_EQ(OpenBuildings(), 1);
    core::EditRecord(core::kBuilding, 11);
    EXPECT_EQ(OpenBuildings(), 2);
    core::EditRecord(core::kUnit, 0);
    core::EditRecord(core::kUnit, 0, 0, 22);
    EXPECT_EQ(OpenBuildings(), 4);
    for (const core::RecordKind kind : {core::kBuilding, core::kUnit})
        core::RegisterOpener(kind, nullptr);
}

TEST_F(BuildingTest, AnAccountOfAnotherTypeIsNotLost) {
    Run("UPDATE Building SET InsAccount = 61, GasAccount = 999 WHERE IdBuilding = 10");
    auto form = Open(10);
    core::NotifyAll(core::kAccount, core::kRecordsChanged, 0);
    EXPECT_EQ(Text(*form, "cboInsurance"), "Al Owner");
    ClickAction(*form, "CLOSE");
    EXPECT_EQ(Ask("SELECT InsAccount FROM Building WHERE IdBuilding = 10"), "61");
    EXPECT_EQ(Ask("SELECT GasAccount FROM Building WHERE IdBuilding = 10"), "999")
        << "nor one that was deleted";
}

TEST_F(BuildingTest, LongAndStrangeTextsComeBackWhole) {
    const QString strange = QStringLiteral("Bob's \"Höfe\" 🏠 #5, 50% ; -- ") + QString(300, 'x');
    auto form = Open(0);
    for (const char* const box : {"txtAddress", "txtZip", "txtUnit"})
        Find<QLineEdit>(*form, box).setText(strange);
    Find<QComboBox>(*form, "cboPropType").setEditText(strange);
    ClickAction(*form, "APPLY");
    EXPECT_EQ(Heard(), Said{});
    form->CloseUnasked();
    form = Open(1000);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Building: ") + strange);
    EXPECT_LE(form->width(), 1280) << "no text makes the screen wider";
    for (const char* const box : {"txtAddress", "txtZip", "txtUnit"})
        EXPECT_EQ(Find<QLineEdit>(*form, box).text(), strange) << box;
    EXPECT_EQ(Find<QComboBox>(*form, "cboPropType").currentText(), strange);
}

} // namespace
} // namespace support
