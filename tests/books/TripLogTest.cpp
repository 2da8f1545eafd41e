#include "books/TripLog.h"

#include <gmock/gmock.h>

#include "books/BooksFixture.h"
#include "books/Odometer.h"

namespace {

using books::Odometer;
using books::TripField;
using books::TripFilter;

TEST(OdometerInStep, KeepsWhatWasTypedLast) {
    struct Case {
        std::string typed; ///< a letter for the box, and what is typed there
        double begin;
        double end;
        double distance; ///< -1 for none
    };
    for (const bool isNew : {true, false}) {
        const std::vector<Case> cases = {
            {"", 100, isNew ? 100.0 : 130, isNew ? 0.0 : 30},
            {"b90", 90, isNew ? 90.0 : 130, isNew ? 0.0 : 40},
            {"e120", 100, 120, 20},
            {"e120 b90", 90, 120, 30},
            {"d12.5", 100, 112.5, 12.5},
            {"d12.5 b200", 200, 212.5, 12.5},
            {"d12.5 e150 b120", 120, 150, 30},
            {"e150 d10 b120", 120, 130, 10},
            {"e99", 100, 99, -1},
            {"e99 b98", 98, 99, 1},
            {"e0.3 b0.1", 0.1, 0.3, 0.2},
            {"d0.04", 100, 100, 0},
        };
        for (const Case& one : cases) {
            Odometer odometer = isNew ? Odometer::At(100) : Odometer::Of(100, 130);
            std::istringstream words(one.typed);
            for (std::string word; words >> word;) {
                const double number = std::stod(word.substr(1));
                if (word[0] == 'b') odometer.TypeBegin(number);
                if (word[0] == 'e') odometer.TypeEnd(number);
                if (word[0] == 'd') odometer.TypeDistance(number);
            }
            EXPECT_EQ(odometer.Begin(), one.begin) << one.typed << isNew;
            EXPECT_EQ(odometer.End(), one.end) << one.typed << isNew;
            EXPECT_EQ(odometer.Distance().value_or(-1), one.distance) << one.typed << isNew;
        }
    }
}

class TripLog : public tests::BooksTest {
  protected:
    TripLog() {
        // Today is 05/17/2024.
        Add(1, "05/17/2024", "Van", 10);
        Add(2, "04/17/2024", "Van", 11);
        Add(3, "04/16/2024", "Jo''s car", 10);
        Add(4, "05/17/2022", "Van", 10);
        Add(5, "", "", 0);
    }
    static void Add(int id, std::string_view day, std::string_view vehicle, int building) {
        Run("INSERT INTO Mileage (IdMileage, EntryDate, Vehicle, Destination, IdBuilding) VALUES "
            "(" +
            std::to_string(id) + ", '" + std::string(day) + "', '" + std::string(vehicle) +
            "', 'Elm', " + std::to_string(building) + ")");
    }
    static std::string Ids(const TripFilter& filter) {
        std::string ids;
        platform::Recordset rows;
        rows.Open(core::App().Connection, books::TripListSql(filter));
        for (; !rows.Eof(); rows.MoveNext())
            ids += rows["IdMileage"].AsText() + " ";
        return ids;
    }
    static std::string Texts(const core::ChoiceList& list) {
        std::string texts;
        for (const core::Choice& row : list.Rows())
            texts += row.text + "=" + std::to_string(row.id) + ";";
        return texts;
    }
};

TEST_F(TripLog, ShowsThePeriodAndTheFilter) {
    EXPECT_EQ("1 2 ", Ids({.days = 30}));
    EXPECT_EQ("1 2 3 ", Ids({.days = 60}));
    EXPECT_EQ("1 2 3 4 ", Ids({.days = 731}));
    EXPECT_EQ("1 2 3 ", Ids({.days = 365}));
    EXPECT_EQ("1 2 3 4 ", Ids({})) << "a trip without a date is in no period";
    EXPECT_EQ("3 ", Ids({.days = 0, .field = TripField::Vehicle, .item = {"Jo's car", 0}}));
    EXPECT_EQ("2 ", Ids({.days = 60, .field = TripField::Building, .item = {"Oak Rd", 11}}));
    EXPECT_EQ("1 2 ", Ids({.days = 30, .field = TripField::Vehicle}));
    EXPECT_EQ("1 2 ", Ids({.days = 30, .field = TripField::None, .item = {"Van", 0}}));
}

TEST_F(TripLog, OffersWhatItCanBeFilteredBy) {
    EXPECT_EQ("All=0;", Texts(books::TripFilterItems(TripField::None)));
    EXPECT_EQ("All=0;Jo's car=0;Van=0;", Texts(books::TripFilterItems(TripField::Vehicle)));
    EXPECT_EQ("All=0;12 Elm St=10;Oak Rd=11;", Texts(books::TripFilterItems(TripField::Building)));
    EXPECT_EQ("Jo's car=0;Van=0;", Texts(books::KnownVehicles()));
    EXPECT_EQ("Elm=0;", Texts(books::KnownDestinations()));
    Run("DELETE FROM Mileage");
    EXPECT_EQ("Van=0;", Texts(books::KnownVehicles())) << "the vehicle of the settings";
}

} // namespace
