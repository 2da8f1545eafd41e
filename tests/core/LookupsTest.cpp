#include "core/Lookups.h"

#include <gmock/gmock.h>

#include "core/NotifyAll.h"
#include "core/RecordHelpers.h"
#include "core/RecordsFixture.h"
#include "core/References.h"
#include "support/KeepingDesktop.h"

namespace {

using Lookups = tests::CoreRecords;
using References = tests::CoreProcess;

TEST_F(Lookups, LinksAreFollowedAndMissingOnesAreZero) {
    EXPECT_EQ(core::GetMortgageBuilding(50), 10);
    EXPECT_EQ(core::GetMortgageBuilding(99), 0);
    EXPECT_EQ(core::GetLeaseUnit(40), 20);
    EXPECT_EQ(core::GetLeaseUnit(0), 0);
    EXPECT_EQ(core::GetUnitBuilding(22), 11);
    EXPECT_EQ(core::GetDefaultCar(), "Van");
    Run("UPDATE Configuration SET DefaultCar = NULL");
    EXPECT_EQ(core::GetDefaultCar(), "");

    std::int32_t unit = -1;
    std::int32_t tenant = -1;
    EXPECT_FALSE(core::GetLeaseParties(41, unit, tenant));
    EXPECT_EQ(unit, -1);
    EXPECT_TRUE(core::GetLeaseParties(40, unit, tenant));
    EXPECT_EQ(unit, 20);
    EXPECT_EQ(tenant, 30);
}

TEST_F(Lookups, AStatusIsWrittenAndBroadcast) {
    std::vector<int> heard;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t action, std::int32_t id) {
        heard.insert(heard.end(), {core::KindNumber(kind), action, id});
    });
    core::SetUnitStatus(20, "Leased");
    core::SetTenantStatus(30, "Ann's");
    EXPECT_THAT(heard, testing::ElementsAre(29, 1, 0, 5, 1, 0));
    EXPECT_EQ(Ask("SELECT Status FROM Unit WHERE IdUnit = 20"), "Leased");
    EXPECT_EQ(Ask("SELECT Status FROM Unit WHERE IdUnit = 21"), "NULL");
    EXPECT_EQ(Ask("SELECT Status FROM Tenant WHERE IdTenant = 30"), "Ann's");
}

TEST_F(Lookups, AlertsAreCutAndDated) {
    core::AddAlert("");
    core::AddAlert("It's due");
    std::string cut(99, 'x');
    cut += "é"; // the hundredth character has two bytes
    core::AddAlert(cut + "!", platform::Date(2024, 2, 29));
    EXPECT_EQ(Ask("SELECT Count(*) FROM Alerts"), "2");
    EXPECT_EQ(Ask("SELECT EntryDate FROM Alerts WHERE Description = 'It''s due'"), "05/17/2024");
    EXPECT_EQ(Ask("SELECT Description FROM Alerts WHERE EntryDate = '02/29/2024'"), cut);
}

TEST_F(Lookups, FiguresOfARecordCountWhatIsUnsetAsZero) {
    Run("INSERT INTO Mileage (Vehicle, OEnd) VALUES ('Al''s van', 900.25)");
    Run("INSERT INTO Mileage (Vehicle, OEnd) VALUES ('Al''s van', 1200.5)");
    Run("INSERT INTO Mileage (Vehicle, OEnd) VALUES ('', 5000)");
    EXPECT_EQ(core::GetVehicleMaxOdometer("Al's van"), 1200.5F);
    EXPECT_EQ(core::GetVehicleMaxOdometer("Truck"), 0.0F);
    EXPECT_EQ(core::GetVehicleMaxOdometer(""), 0.0F);
    EXPECT_EQ(core::GetBuildingDistance(10), 7.5F);
    EXPECT_EQ(core::GetBuildingDistance(99), 0.0F);
    EXPECT_EQ(core::GetBuildingEquity(10), 79999.75);
    EXPECT_EQ(core::GetBuildingEquity(11), 0.0);
    EXPECT_EQ(core::GetUnitRent(20), platform::Currency::FromScaled(9505000));
    Run("UPDATE Unit SET Rent = NULL WHERE IdUnit = 21");
    EXPECT_EQ(core::GetUnitRent(21), platform::Currency());
    EXPECT_EQ(core::GetUnitRent(99), platform::Currency());
}

TEST_F(References, FindPlacesAndTaxPages) {
    EXPECT_EQ(core::ZipLookup("97301"), std::nullopt);
    {
        platform::Connection references;
        references.Open(PathTo("References.mdb"), platform::OpenMode::Create);
        references.RunScript(
            "CREATE TABLE ZipCodes (Zip INTEGER, City TEXT, State TEXT, County TEXT);"
            "INSERT INTO ZipCodes VALUES (97301, 'Salem', 'OR', NULL), (2134, 'Boston', 'MA', 'S'),"
            " (88976, 'Elsewhere', 'NM', 'X');"
            "CREATE TABLE TaxURL (County TEXT, State TEXT, StateAbbr TEXT, URL TEXT);"
            "INSERT INTO TaxURL VALUES"
            " ('Prince George''s', 'Maryland', 'MD', 'http://md/<<TaxAccount>>?<<taxaccount>>'),"
            " ('Lane', 'Oregon', 'OR', 'http://or');");
    }
    core::SetAppPath(Folder().string());

    struct Zip {
        std::string_view zip;
        std::string_view city;
    };
    const Zip zips[] = {
        {"97301", "Salem"}, {" 02134 ", "Boston"}, {"90210-1234", "-"},  {"", "-"},
        {"  ", "-"},        {"9730", "-"},         {"99999999999", "-"}, {"1 OR 1=1", "-"},
        {"-97301", "-"},
    };
    for (const Zip& c : zips) {
        const auto place = core::ZipLookup(c.zip);
        EXPECT_EQ(place ? place->city : "-", c.city) << c.zip;
    }

    const support::KeepingDesktop desktop;
    core::GetTaxUrl("R-7", "prince george's", "MD");
    core::GetTaxUrl("R-7", "Lane", "Oregon");
    core::GetTaxUrl("R-7", "Lane", "MD");
    core::GetTaxUrl("R-7", "", "");
    EXPECT_THAT(desktop.Opened(), testing::ElementsAre("http://md/R-7?R-7", "http://or"));
}

} // namespace
