#include "books/screens/frmMileageWiz.h"

#include <gmock/gmock.h>

#include "support/Books.h"
#include "support/screens/DoubleClick.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using books::screens::frmMileageWiz;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::uint32_t kSeed = 5;

/// The wizard on 05/17/2024, on books with three transactions of that year that name a building.
class MileageWizard : public ScreenTest {
  protected:
    MileageWizard() {
        const auto add = [](int id, std::string_view day, std::string_view category, int building) {
            core::App().Connection.Execute(
                "INSERT INTO Transactions (IdTransaction, DateEffective, TaxCategory, Description, "
                "IdBuilding) VALUES (?, ?, ?, ?, ?)",
                {id, day, category, "T" + std::to_string(id), building});
        };
        add(201, "02/01/2024", "Repairs", 10);
        add(202, "02/01/2024", "Rent", 10);
        add(203, "12/31/2024", "Repairs", 11);
        add(204, "07/01/2023", "Taxes", 10);
        Run("INSERT INTO Mileage (IdMileage, EntryDate, Vehicle) VALUES (101, '01/05/2024', "
            "'Truck')");
        wizard_ = new frmMileageWiz(nullptr, kSeed);
        wizard_->Setup();
        SettleEvents();
    }
    template <class T>
    T& The(const char* name) {
        return Find<T>(*wizard_, name);
    }
    void Next() { ClickOn(The<QPushButton>("cmdNext")); }
    void GoToPreview() {
        while (wizard_->Step() < 4)
            Next();
    }
    static std::vector<std::string> Rows(const QTreeWidget& list) {
        std::vector<std::string> lines;
        for (int row = 0; row < list.topLevelItemCount(); ++row) {
            const QTreeWidgetItem& item = *list.topLevelItem(row);
            std::string line;
            for (int column = 0; column < list.columnCount(); ++column)
                line += (column > 0 ? "|" : "") + FromScreen(item.text(column));
            lines.push_back(line);
        }
        return lines;
    }
    std::vector<std::string> Trips() { return Rows(The<QTreeWidget>("lvwTrips")); }
    std::vector<std::string> Categories() {
        const auto& list = The<QListWidget>("lstCategories");
        std::vector<std::string> texts;
        for (int row = 0; row < list.count(); ++row)
            texts.push_back(FromScreen(list.item(row)->text()));
        return texts;
    }
    static std::string Logged() { return Ask("SELECT Count(*) FROM Mileage"); }

    frmMileageWiz* wizard_;
};

TEST_F(MileageWizard, SaysThatTheLogIsReconstructedAndReadsThePeriod) {
    const std::string intro = FromScreen(The<QLabel>("lblIntro").text());
    EXPECT_THAT(intro, HasSubstr("reconstructed, not measured"));
    EXPECT_THAT(intro, HasSubstr("You answer for the log."));
    EXPECT_THAT(Portray(*wizard_, "frmMileageWiz-0"), IsEmpty());
    Next();
    EXPECT_EQ("01/01/2024", FromScreen(The<QLineEdit>("dpStart").text()));
    EXPECT_EQ("12/31/2024", FromScreen(The<QLineEdit>("dpEnd").text()));
    EXPECT_THAT(Categories(), ElementsAre("Rent", "Repairs"));
    EXPECT_THAT(Rows(The<QTreeWidget>("lvwVehicles")),
                ElementsAre("Truck|1.0|10,000.0|01/01/2024|12/31/2024|100.0"))
        << "not the usual vehicle, which has no trip";
    EXPECT_THAT(Rows(The<QTreeWidget>("lvwBuildings")), ElementsAre("12 Elm St|7.5", "Oak Rd|.0"));
    EXPECT_EQ("15", FromScreen(The<QLineEdit>("txtBuildingVariance").text()));

    The<QListWidget>("lstCategories").item(0)->setCheckState(Qt::Unchecked);
    Type(The<QLineEdit>("dpStart"), "01/01/2023");
    EXPECT_THAT(Categories(), ElementsAre("Rent", "Repairs", "Taxes"));
    EXPECT_EQ(Qt::Unchecked, The<QListWidget>("lstCategories").item(0)->checkState());
    EXPECT_THAT(Rows(The<QTreeWidget>("lvwVehicles"))[0], HasSubstr("01/01/2023"));
    EXPECT_THAT(Portray(*wizard_, "frmMileageWiz-1"), IsEmpty());
    Type(The<QLineEdit>("dpEnd"), "12/31/2022");
    Next();
    EXPECT_EQ(1, wizard_->Step());
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("The period must not end before it starts.")));
}

TEST_F(MileageWizard, ChangesVehiclesAndBuildings) {
    Next();
    Next();
    const auto& list = The<QTreeWidget>("lvwVehicles");
    ClickOn(The<QPushButton>("cmdVehicleAdd"));
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("Truck is on the list already.")));
    Type(The<QLineEdit>("txtVehicle"), "Bike");
    Type(The<QLineEdit>("txtOStart"), "20");
    Type(The<QLineEdit>("txtOEnd"), "10");
    ClickOn(The<QPushButton>("cmdVehicleAdd"));
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("must not be below the starting one")));
    Type(The<QLineEdit>("txtOEnd"), "90.5");
    ClickOn(The<QPushButton>("cmdVehicleAdd"));
    EXPECT_EQ("Bike|20.0|90.5|01/01/2024|12/31/2024|100.0", Rows(list).back());
    Type(The<QLineEdit>("txtPctUsed"), "12.5");
    ClickOn(The<QPushButton>("cmdVehicleUpdate"));
    EXPECT_THAT(Rows(list), SizeIs(2));
    EXPECT_EQ("Bike|20.0|90.5|01/01/2024|12/31/2024|12.5", Rows(list).back());
    EXPECT_THAT(Portray(*wizard_, "frmMileageWiz-2"), IsEmpty());
    for (int i = 0; i < 2; ++i)
        ClickOn(The<QPushButton>("cmdVehicleDelete"));
    EXPECT_THAT(Rows(list), IsEmpty());
    EXPECT_FALSE(The<QPushButton>("cmdVehicleUpdate").isEnabled());
    Next();
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("At least one vehicle must be ticked.")));
    ClickOn(The<QPushButton>("cmdVehicleAdd"));
    Next();
    ASSERT_EQ(3, wizard_->Step());
    EXPECT_THAT(Portray(*wizard_, "frmMileageWiz-3"), IsEmpty());
    The<QTreeWidget>("lvwBuildings").topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    ClickOn(The<QPushButton>("cmdBuildingDelete"));
    support::Choose(*wizard_, "cboBuilding", "12 Elm St");
    EXPECT_EQ("7.5", FromScreen(The<QLineEdit>("txtDistance").text()));
    Type(The<QLineEdit>("txtDistance"), "9");
    ClickOn(The<QPushButton>("cmdBuildingAdd"));
    EXPECT_THAT(Rows(The<QTreeWidget>("lvwBuildings")), ElementsAre("Oak Rd|.0", "12 Elm St|9.0"));
}

TEST_F(MileageWizard, ShowsAPreviewThatCanBeChangedAndThrownAgain) {
    GoToPreview();
    const std::vector<std::string> first = Trips();
    ASSERT_EQ(3U, first.size());
    EXPECT_THAT(first[0], testing::StartsWith("02/01/2024|"));
    EXPECT_THAT(first[0], HasSubstr("|12 Elm St, Salem OR|T201"));
    EXPECT_THAT(FromScreen(The<QLabel>("lblTotals").text()), HasSubstr("3 trips"));
    EXPECT_THAT(FromScreen(The<QLabel>("lblReconstructed").text()), HasSubstr("You answer"));
    EXPECT_EQ(LookFaults(*wizard_, "frmMileageWiz-4"), std::vector<std::string>{});
    ClickOn(The<QPushButton>("cmdPreview"));
    EXPECT_NE(first, Trips()) << "another throw";
    EXPECT_THAT(Heard(), IsEmpty());

    Type(The<QLineEdit>("txtTripBegin"), "500");
    Type(The<QLineEdit>("txtTripMileage"), "4");
    EXPECT_EQ("504.0", FromScreen(The<QLineEdit>("txtTripEnd").text()));
    Type(The<QLineEdit>("dpTripDate"), "02/01/2025");
    ClickOn(The<QPushButton>("cmdTripUpdate"));
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("The date must be within the period.")));
    Type(The<QLineEdit>("dpTripDate"), "02/02/2024");
    Type(The<QLineEdit>("txtTripPurpose"), "By hand");
    ClickOn(The<QPushButton>("cmdTripUpdate"));
    const std::vector<std::string> changed = Trips();
    EXPECT_THAT(changed[0], HasSubstr("|500.0|504.0|4.0|"));
    EXPECT_THAT(changed[0], HasSubstr("|By hand"));
    ClickOn(The<QPushButton>("cmdBack"));
    Next();
    EXPECT_EQ(changed, Trips()) << "nothing of the plan was changed";
    ClickOn(The<QPushButton>("cmdPreview"));
    EXPECT_EQ(changed, Trips());
    EXPECT_THAT(Heard(), ElementsAre(HasSubstr("Throw them away and make a new preview?")));
    wizard_->close();
    EXPECT_TRUE(wizard_->isVisible());
    EXPECT_THAT(Heard(), ElementsAre("Whoa!: Close without saving changes?"));
    ClickOn(The<QPushButton>("cmdBack"));
    Type(The<QLineEdit>("txtBuildingVariance"), "0");
    Next();
    EXPECT_NE(changed, Trips()) << "the plan was changed";
    EXPECT_THAT(Trips()[0], HasSubstr("|7.5|"));
}

TEST_F(MileageWizard, DeletesOneRowByADoubleClick) {
    GoToPreview();
    support::DoubleClickOn(The<QPushButton>("cmdTripDelete"));
    EXPECT_THAT(Trips(), SizeIs(2));
    wizard_->activateWindow();
    The<QTreeWidget>("lvwTrips").setFocus();
    support::SettleEvents();
    QTest::keyClick(&The<QTreeWidget>("lvwTrips"), Qt::Key_Delete);
    EXPECT_THAT(Trips(), SizeIs(1));
}

TEST_F(MileageWizard, SubmitsOnceAfterAQuestion) {
    GoToPreview();
    ClickOn(The<QPushButton>("cmdTripDelete"));
    auto& submit = The<QPushButton>("cmdNext");
    EXPECT_EQ("&Submit", FromScreen(submit.text()));
    ClickOn(submit);
    EXPECT_EQ("1", Logged()) << "No";
    EXPECT_THAT(Heard(),
                ElementsAre("Confirm Submit: Submit 2 trips to the mileage log?\n\nThe log already "
                            "holds 1 trip of this period, which stays there.\n\nThe trips are "
                            "reconstructed, not measured, and you answer for them."));
    EXPECT_TRUE(wizard_->isVisible());
    Answer({true, true});
    const std::vector<std::string> trips = Trips();
    wizard_->setAttribute(Qt::WA_DeleteOnClose, false);
    ClickOn(submit);
    EXPECT_EQ("3", Logged());
    EXPECT_FALSE(wizard_->isVisible());
    submit.click();
    EXPECT_EQ("3", Logged());
    EXPECT_EQ("T202", Ask("SELECT Purpose FROM Mileage WHERE EntryDate = '02/01/2024'"));
    EXPECT_THAT(trips, SizeIs(2));
    delete wizard_;
}

TEST_F(MileageWizard, KeepsThePreviewWhenTheSubmitFails) {
    GoToPreview();
    Run("DELETE FROM Configuration"); // no more ids
    Answer({true});
    ClickOn(The<QPushButton>("cmdNext"));
    EXPECT_EQ("1", Logged());
    EXPECT_THAT(Heard(), SizeIs(2)) << "the question, and what failed";
    EXPECT_TRUE(wizard_->isVisible());
    EXPECT_THAT(Trips(), SizeIs(3));
}

} // namespace
} // namespace support
