#include "records/BuildingRules.h"

#include "core/NotifyAll.h"
#include "core/RecordsFixture.h"
#include "platform/database/Recordset.h"
#include "platform/values/Conversions.h"
#include "support/ScriptedDialogs.h"

namespace {

using platform::Currency;

class BuildingRulesTest : public tests::CoreRecords {};

TEST_F(BuildingRulesTest, AnAddressIsMoreThanBlanks) {
    const std::vector<std::string> refused = {"An address must be entered."};
    EXPECT_EQ(records::BuildingErrors(""), refused);
    EXPECT_EQ(records::BuildingErrors(" \t "), refused);
    EXPECT_TRUE(records::BuildingErrors("O'Hara's \"Place\"").empty());
}

TEST_F(BuildingRulesTest, ANewUnitStandsOnHoldWithNothingUnset) {
    std::string told;
    const core::NotifyToken token([&](core::RecordKind kind, std::int16_t action, std::int32_t id) {
        told += std::to_string(core::KindNumber(kind)) + " " + std::to_string(action) + " " +
                std::to_string(id) + ";";
    });
    EXPECT_EQ(records::MakeNewUnit(10), 1000);
    EXPECT_EQ(told, "29 1 0;");
    platform::Recordset row;
    row.Open(core::App().Connection, "SELECT * FROM Unit WHERE IdUnit = 1000");
    std::string stored;
    for (std::size_t i = 0; i < row.FieldCount(); ++i) {
        const platform::Value value = row[i].Value();
        stored += row[i].Name() + "=" + (value.IsNull() ? "NULL" : value.AsText()) + " ";
    }
    EXPECT_EQ(stored,
              "IdUnit=1000 IdBuilding=10 Hide=False Selected=False Unit=<new> Status=Hold Ccount=0 "
              "Rent=0 Faces= KeyType= KeyCode= SecTenant= Ad= Bedrooms= Bathrooms= Garage= SqFt=0 "
              "Split=False Fireplace=False WDHookup=False Smoke=False PetAllowed=False Notes= ");
}

TEST_F(BuildingRulesTest, UnitsStandByTheirLabels) {
    Run("INSERT INTO Unit (IdUnit, IdBuilding, Unit) VALUES (23, 10, NULL)");
    EXPECT_EQ(records::UnitsOf(10), (std::vector<core::Choice>{{"", 23}, {"A", 21}, {"B", 20}}));
    EXPECT_TRUE(records::UnitsOf(999).empty());
    EXPECT_TRUE(records::AreStored(10, 20));
    EXPECT_FALSE(records::AreStored(10, 999));
    EXPECT_FALSE(records::AreStored(999, 20));
}

TEST_F(BuildingRulesTest, TheEquityIsWhatTheMortgagesLeave) {
    EXPECT_EQ(platform::MoneyToText(records::EquityAt(Currency::FromUnits(200000), 10)),
              "79999.75");
    EXPECT_EQ(platform::MoneyToText(records::EquityAt(Currency::FromUnits(0), 10)), "-120000.25")
        << "a mortgage without a value counts as nothing";
    EXPECT_EQ(platform::MoneyToText(records::EquityAt(Currency::FromUnits(500), 11)), "500");
    EXPECT_EQ(platform::MoneyToText(records::EquityAt(Currency::FromUnits(500), 0)), "500");
}

TEST_F(BuildingRulesTest, AScheduleWantsABasisAndATerm) {
    const std::string basis = "Depreciation basis must be greater than 0.";
    const std::string term = "Depreciation term must be greater than 0.";
    EXPECT_EQ(records::DepreciationFault(Currency(), 0), basis) << "the basis is reported first";
    EXPECT_EQ(records::DepreciationFault(Currency::FromUnits(-1), 27.5), basis);
    EXPECT_EQ(records::DepreciationFault(Currency::FromUnits(1), 0), term);
    EXPECT_EQ(records::DepreciationFault(Currency::FromUnits(1), 0.1), std::nullopt);
}

TEST_F(BuildingRulesTest, AMissingUnitNumberIsTold) {
    const support::ScriptedDialogs person;
    records::TellUnitNumberMissing("1");
    EXPECT_TRUE(person.Heard().empty());
    records::TellUnitNumberMissing("");
    ASSERT_EQ(person.Heard().size(), 1U);
    EXPECT_EQ(person.Heard()[0].title, "Unit Number Missing");
}

} // namespace
