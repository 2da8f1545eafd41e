#include "books/screens/frmMileage.h"

#include <gmock/gmock.h>

#include "core/Preferences.h"
#include "core/Settings.h"
#include "support/Books.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using books::screens::frmMileage;
using testing::ElementsAre;
using testing::IsEmpty;

/// The log on 05/17/2024; the usual vehicle is the Van.
class MileageLog : public ScreenTest {
  protected:
    MileageLog() {
        Add(101, "05/10/2024", "Van", 100, 115, 10);
        Add(102, "04/01/2024", "Truck", 900, 950.5, 11);
        Add(103, "05/12/2023", "Van", 50, 60, 10);
    }
    static void Add(int id, std::string_view day, std::string_view vehicle, double begin,
                    double end, int building) {
        core::App().Connection.Execute(
            "INSERT INTO Mileage (IdMileage, Selected, EntryDate, Vehicle, OBegin, OEnd, Mileage, "
            "Destination, Purpose, Meal, IdBuilding, IdWorkOrder, idUser) "
            "VALUES (?, True, ?, ?, ?, ?, ?, 'Elm', 'Roof', 7.5, ?, 77, 88)",
            {id, day, vehicle, begin, end, end - begin, building});
    }
    frmMileage& OpenLog(std::int32_t id = 0) {
        auto* const form = new frmMileage;
        form->Setup(id);
        SettleEvents();
        return *form;
    }
    static core::grid::Grid& List(const frmMileage& form) {
        return Find<core::grid::Grid>(form, "grd");
    }
    static std::string Box(const frmMileage& form, const char* name) {
        return FromScreen(Find<QLineEdit>(form, name).text());
    }
    static std::string Odometer(const frmMileage& form) {
        return Box(form, "txtOBegin") + " " + Box(form, "txtOEnd") + " " + Box(form, "txtMileage");
    }
    static std::string Row(std::int32_t id) {
        const auto rows =
            support::Rows(core::App().Connection,
                          "SELECT * FROM Mileage WHERE IdMileage = " + std::to_string(id));
        return rows.empty() ? "-" : rows[0];
    }
};

TEST_F(MileageLog, KeepsTheOdometerInStepWhileItIsTyped) {
    frmMileage& form = OpenLog();
    EXPECT_EQ("115.0 115.0 .0", Odometer(form)) << "where the van stands";
    Type(Find<QLineEdit>(form, "txtMileage"), "12.5");
    EXPECT_EQ("115.0 127.5 12.5", Odometer(form));
    Type(Find<QLineEdit>(form, "txtOBegin"), "200");
    EXPECT_EQ("200 212.5 12.5", Odometer(form));
    Type(Find<QLineEdit>(form, "txtOEnd"), "199");
    EXPECT_EQ("200.0 199 ", Odometer(form));
    ClickOn(Find<QPushButton>(form, "cmdAdd"));
    EXPECT_THAT(Heard(), ElementsAre("Whoa!: The following errors have occured:\n\nThe ending "
                                     "odometer reading must not be below the starting one.\n"));
    TypeOn(Find<QLineEdit>(form, "txtOEnd"), ".9");
    Type(Find<QLineEdit>(form, "txtOEnd"), "1200.9");
    EXPECT_EQ("200.0 1200.9 1,000.9", Odometer(form));
    Choose(form, "cboVehicle", "Truck");
    EXPECT_EQ("200.0 1200.9 1,000.9", Odometer(form)) << "the start was typed";
    Find<QPushButton>(form, "cmdNew").click();
}

TEST_F(MileageLog, AddsWhatTheBoxesHoldOnce) {
    frmMileage& form = OpenLog();
    EXPECT_FALSE(Find<QPushButton>(form, "cmdAdd").isEnabled());
    Choose(form, "cboVehicle", "Truck");
    EXPECT_EQ("950.5 950.5 .0", Odometer(form));
    Choose(form, "cboBuilding", "12 Elm St");
    EXPECT_EQ("950.5 965.5 15.0", Odometer(form)) << "there and back";
    EXPECT_EQ("12 Elm St", FromScreen(Find<QComboBox>(form, "cboDestination").currentText()));
    Type(Find<QLineEdit>(form, "txtPurpose"), "Keys & locks");
    auto& add = Find<QPushButton>(form, "cmdAdd");
    ClickOn(add);
    ClickOn(add);
    EXPECT_EQ("4", Ask("SELECT Count(*) FROM Mileage"));
    const std::int32_t id = std::stoi(Ask("SELECT Max(IdMileage) FROM Mileage"));
    EXPECT_EQ(Row(id), std::to_string(id) +
                           "|False|05/17/2024|Truck|12 Elm St|Keys & locks|"
                           "950.5|965.5|15|0|10|0|0");
    EXPECT_EQ("115.0 115.0 .0", Odometer(form)) << "ready for the next trip";
    EXPECT_EQ("", Box(form, "txtPurpose"));

    // From a selected trip: that one stays, and a new one is added.
    List(form).SelectId(101);
    EXPECT_EQ("100.0 115.0 15.0", Odometer(form));
    const std::string before = Row(101);
    Type(Find<QLineEdit>(form, "txtPurpose"), "Again");
    ClickOn(add);
    EXPECT_EQ("5", Ask("SELECT Count(*) FROM Mileage"));
    EXPECT_EQ(before, Row(101));
    EXPECT_EQ("False|0|0", support::Rows(core::App().Connection,
                                         "SELECT Selected, IdWorkOrder, idUser FROM Mileage "
                                         "WHERE Purpose = 'Again'")[0]);
    Find<QPushButton>(form, "cmdNew").click();
    support::ClickAction(form, "CLOSE");
    EXPECT_EQ("5", Ask("SELECT Count(*) FROM Mileage")) << "closing adds no trip";
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(MileageLog, ChangesASelectedTripAndNothingItDoesNotShow) {
    frmMileage& form = OpenLog(103);
    EXPECT_EQ("50.0 60.0 10.0", Odometer(form)) << "though it isn't in the period";
    EXPECT_EQ(0, List(form).SelectedCount());
    List(form).SelectId(101);
    Type(Find<QLineEdit>(form, "txtOBegin"), "99");
    EXPECT_EQ("99 115.0 16.0", Odometer(form));
    List(form).SelectId(102); // No: the trip isn't left
    EXPECT_THAT(Heard(), ElementsAre("Whoa!: Close without saving changes?"));
    EXPECT_EQ(101, List(form).SelectedId());
    EXPECT_EQ("99 115.0 16.0", Odometer(form));
    support::ClickAction(form, "APPLY");
    EXPECT_EQ(Row(101), "101|True|05/10/2024|Van|Elm|Roof|99|115|16|7.5|10|77|88");
    Type(Find<QLineEdit>(form, "txtPurpose"), "x");
    Answer({true});
    List(form).SelectId(102);
    EXPECT_EQ("900.0 950.5 50.5", Odometer(form));
    EXPECT_EQ("Roof", Box(form, "txtPurpose"));
    const std::string before = Row(102);
    support::ClickAction(form, "CLOSE");
    EXPECT_EQ(before, Row(102));
}

TEST_F(MileageLog, CopiesAndDeletes) {
    frmMileage& form = OpenLog(101);
    Find<QAction>(form, "mnuCopy").trigger();
    EXPECT_EQ("05/17/2024", Box(form, "dpEntryDate"));
    EXPECT_EQ("115.0 130.0 15.0", Odometer(form));
    EXPECT_EQ(0, form.Id());
    support::ClickAction(form, "APPLY");
    EXPECT_EQ("Roof", Ask("SELECT Purpose FROM Mileage WHERE OEnd = 130"));
    EXPECT_EQ("0", Ask("SELECT IdWorkOrder FROM Mileage WHERE OEnd = 130"));

    List(form).SelectId(101);
    ClickOn(Find<QPushButton>(form, "cmdDelete"));
    EXPECT_EQ("4", Ask("SELECT Count(*) FROM Mileage")) << "No";
    EXPECT_THAT(Heard(), ElementsAre("Confirm Delete: Delete selected Mileage entry?"));
    Answer({true});
    List(form).setFocus();
    QTest::keyClick(&List(form), Qt::Key_Delete);
    EXPECT_EQ("-", Row(101));
    EXPECT_EQ(0, form.Id());
    EXPECT_FALSE(Find<QPushButton>(form, "cmdDelete").isEnabled());
    QTest::keyClick(&List(form), Qt::Key_Delete);
    EXPECT_EQ("3", Ask("SELECT Count(*) FROM Mileage"));
}

TEST_F(MileageLog, FiltersAndKeepsItsPeriod) {
    {
        frmMileage& form = OpenLog();
        EXPECT_EQ("Last 90 days", FromScreen(Find<QComboBox>(form, "cboDays").currentText()));
        EXPECT_EQ("2 trips, 65.5 miles, meals 15.00",
                  FromScreen(Find<QLabel>(form, "lblTotals").text()));
        Run("UPDATE Mileage SET OBegin = 41000 WHERE IdMileage = 103");
        Choose(form, "cboDays", "All");
        ASSERT_EQ(3, List(form).Model().rowCount());
        EXPECT_EQ("41000.0", FromScreen(List(form).Model().index(2, 3).data().toString()));
        Choose(form, "cboFilter", "Vehicle");
        EXPECT_EQ("All", FromScreen(Find<QComboBox>(form, "cboFilterItem").currentText()));
        Choose(form, "cboFilterItem", "Van");
        EXPECT_EQ(2, List(form).Model().rowCount());
        core::NotifyAll(core::kMileage, 1, 0);
        EXPECT_EQ("Van", FromScreen(Find<QComboBox>(form, "cboFilterItem").currentText()));
        EXPECT_EQ(2, List(form).Model().rowCount());
        Choose(form, "cboFilter", "Building");
        Choose(form, "cboFilterItem", "Oak Rd");
        EXPECT_EQ("1 trip, 50.5 miles, meals 7.50",
                  FromScreen(Find<QLabel>(form, "lblTotals").text()));
        Choose(form, "cboFilter", "None");
        EXPECT_EQ(3, List(form).Model().rowCount());
        EXPECT_FALSE(form.Dirty()) << "the filter is no part of a trip";
        form.close();
    }
    EXPECT_EQ(0, core::Preferences().ViewMileageDays);
    core::LoadPreferences();
    EXPECT_EQ(0, core::Preferences().ViewMileageDays);
    EXPECT_EQ("All", FromScreen(Find<QComboBox>(OpenLog(), "cboDays").currentText()));
}

TEST_F(MileageLog, FollowsOtherScreensAndLooksRight) {
    frmMileage& form = OpenLog();
    Run("UPDATE Mileage SET Purpose = 'A purpose that is rather long for the column in which it "
        "stands, as those of transactions are' WHERE IdMileage = 102");
    Run("INSERT INTO Mileage (IdMileage, EntryDate, Vehicle) VALUES (104, '05/16/2024', 'Bus')");
    Type(Find<QLineEdit>(form, "txtPurpose"), "Mine");
    core::NotifyAll(core::kMileage, 1, 0);
    EXPECT_EQ(3, List(form).Model().rowCount());
    EXPECT_EQ("Mine", Box(form, "txtPurpose"));
    EXPECT_GE(Find<QComboBox>(form, "cboVehicle").findText("Bus"), 0);
    Answer({true});
    List(form).SelectId(104);
    EXPECT_EQ("  ", Odometer(form)) << "nothing of the trip before";
    List(form).SelectId(102);
    EXPECT_EQ(LookFaults(form, "frmMileage"), std::vector<std::string>{});
}

} // namespace
} // namespace support
