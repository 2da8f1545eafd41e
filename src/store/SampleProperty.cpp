#include "store/SampleProperty.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <fmt/core.h>

#include "store/SampleWords.h"

namespace store {

using platform::Currency;
using platform::DateAdd;
using platform::Interval;

namespace {

/// The number of units of each building; after the last number the first one follows.
constexpr int kSizes[] = {1, 1, 4, 1, 6, 1, 2, 8};

struct UnitPlan {
    std::string label;
    int bedrooms = 1;
    int rent = 0;
};

std::string UnitLabel(int index, int count) {
    if (count == 1) return "";
    if (count == 2) return index == 0 ? "A" : "B";
    if (count <= 6) return std::to_string(index + 1);
    return std::to_string((index / 4 + 1) * 100 + index % 4 + 1);
}

std::vector<UnitPlan> PlanUnits(SampleDice& dice, int count) {
    std::vector<UnitPlan> plans;
    for (int i = 0; i < count; ++i) {
        const int bedrooms = count == 1 ? dice.Between(2, 4) : dice.Between(1, 3);
        const int rent = 525 + 245 * bedrooms + 25 * dice.Between(0, 8);
        plans.push_back({UnitLabel(i, count), bedrooms, rent});
    }
    return plans;
}

std::string_view PropertyType(int units, bool inAssociation) {
    if (units == 1) return inAssociation ? "Townhouse" : "Single Family";
    if (units == 2) return "Duplex";
    return units <= 4 ? "Fourplex" : "Apartments";
}

/// Returns the end of a policy, usually in some months; every fourth one is within the days that
/// the home page looks ahead.
platform::Date NextInsurance(SampleBooks& books, std::size_t index) {
    const int days = index % 4 == 0 ? books.dice.Between(3, 28) : books.dice.Between(31, 330);
    return DateAdd(Interval::Day, days, books.today);
}

std::int32_t AddBuilding(SampleBooks& books, const SampleTown& town, std::size_t index, int units,
                         const SampleBuilding& building) {
    SampleDice& dice = books.dice;
    const SampleAccounts& accounts = books.accounts;
    const bool inAssociation = units == 1 && index % 3 == 1;
    const auto purchased = DateAdd(Interval::Day, -dice.Between(900, 6500), books.today);
    const std::int64_t price =
        building.marketValue.Scaled() / Currency::kScale / 1000 * dice.Between(62, 84) / 100 * 1000;
    const auto& utilities = accounts.utilities;
    return books.rows.Add(
        "Building",
        {{"Multi", units > 1},
         {"Address", building.address},
         {"City", town.city},
         {"County", town.county},
         {"State", town.state},
         {"Zip", town.zip},
         {"PropType", PropertyType(units, inAssociation)},
         {"PropDesc", units > 4 ? "Brick, flat roof" : "Wood frame, pitched roof"},
         {"Zoning", units > 1 ? "Multi-family" : "Residential"},
         {"Construction", units > 4 ? "Brick" : "Frame"},
         {"Region", town.state},
         {"YearBuilt", dice.Between(1908, 2011)},
         {"StoryHeight", units > 1 ? 2 : dice.Between(1, 2)},
         {"LotSize", fmt::format("0.{:02} acres", dice.Between(8, 70))},
         {"KeyType", "Deadbolt"},
         {"KeyCode", "K" + SampleDigits(dice, 4)},
         {"TaxAccountNumber", "R" + SampleDigits(dice, 7)},
         {"Legal", fmt::format("Lot {}, Block C", dice.Between(1, 40))},
         {"Shed", dice.OneIn(3)},
         {"Fence", dice.OneIn(2)},
         {"Pool", units > 4},
         {"LawnIrrigation", dice.OneIn(4)},
         {"Deck", dice.OneIn(3)},
         {"Waterfront", dice.OneIn(12)},
         {"Distance", building.distance},
         {"PurchDate", purchased.ToText()},
         {"PurchPrice", Currency::FromUnits(price)},
         {"PurchFrom", fmt::format("Estate of {}", SampleSurname(dice))},
         {"PurchTitleIns", true},
         {"MktValue", building.marketValue},
         {"Equity", building.marketValue},
         {"DeprMethod", "Straight Line"},
         {"DeprPeriod", 27.5},
         {"DeprBasis", Currency::FromUnits(price * 8 / 10)},
         {"HOAAccount", inAssociation ? accounts.association : 0},
         {"HOAFrequency", inAssociation ? "Monthly" : ""},
         {"HOAPayment", Currency::FromUnits(inAssociation ? 10 * dice.Between(12, 30) : 0)},
         {"HOANextDue",
          inAssociation ? DateAdd(Interval::Day, dice.Between(2, 14), books.today).ToText() : ""},
         {"InsAccount", dice.Pick(accounts.insurers)},
         {"InsPolNum", "HP-" + SampleDigits(dice, 7)},
         {"InsNextDue", NextInsurance(books, index).ToText()},
         {"SecAccount", units > 4 ? accounts.security : 0},
         {"SecVendor", units > 4 ? "Night Owl Alarm Monitoring" : ""},
         {"SecAccountNumber", units > 4 ? SampleDigits(dice, 6) : ""},
         {"ElectricAccount", utilities[0]},
         {"WaterAccount", utilities[1]},
         {"GasAccount", utilities[2]},
         {"SewageAccount", utilities[3]},
         {"CableAccount", utilities[4]},
         {"TrashAccount", utilities[5]},
         {"ElectricAccountNumber", SampleDigits(dice, 9)},
         {"WaterAccountNumber", SampleDigits(dice, 8)},
         {"WaterSource", dice.OneIn(8) ? "Well" : "City"},
         {"SewageType", dice.OneIn(8) ? "Septic" : "City"},
         {"GasType", "Natural"}});
}

/// Adds owners with their shares, together 100; the first one is the primary owner.
void AddOwners(SampleBooks& books, SampleBuilding& building, std::size_t index) {
    static const std::vector<double> kShares[] = {
        {100}, {50, 50}, {60, 25, 15}, {100}, {66.5, 33.5}};
    const std::vector<double>& shares = kShares[index % std::size(kShares)];
    const auto& owners = books.accounts.owners;
    for (std::size_t i = 0; i < shares.size(); ++i) {
        const std::int32_t owner = owners[(index + i) % owners.size()];
        if (i == 0) building.idOwner = owner;
        books.rows.Add("OwnerLink", {{"IdBuilding", building.id},
                                     {"IdAccount", owner},
                                     {"Percent", shares[i]},
                                     {"IsPrimary", i == 0}});
    }
}

void AddManager(SampleBooks& books, const SampleBuilding& building, std::size_t index) {
    const bool fixed = index % 2 == 0;
    const auto& managers = books.accounts.managers;
    books.rows.Add(
        "ManagerLink",
        {{"IdBuilding", building.id},
         {"IdAccount", managers[index % managers.size()]},
         {"DateStart", DateAdd(Interval::Month, -books.dice.Between(8, 40), books.today).ToText()},
         {"Term", fixed ? 12 : 2},
         {"TermType", fixed ? "Month(s)" : "Year(s)"},
         {"FeeType", fixed ? "Fixed" : "Percentage"},
         {"FirstFee", fixed ? 150.0 : 50.0},
         {"MonthlyFee", fixed ? 85.0 : 7.5},
         {"RepairLimit", Currency::FromUnits(300)},
         {"OnSite", building.units.size() > 4}});
}

SampleUnit AddUnit(SampleBooks& books, const SampleTown& town, const SampleBuilding& building,
                   const UnitPlan& plan) {
    SampleDice& dice = books.dice;
    constexpr std::array<std::string_view, 4> kFaces = {"North", "East", "South", "West"};
    SampleUnit unit;
    unit.idBuilding = building.id;
    unit.rent = Currency::FromUnits(plan.rent);
    unit.areaCode = town.areaCode;
    const char* const baths = plan.bedrooms == 1 ? "1" : plan.bedrooms == 2 ? "1.5" : "2";
    unit.id = books.rows.Add(
        "Unit", {{"IdBuilding", building.id},
                 {"Unit", plan.label},
                 {"Status", "Avaliable"},
                 {"Rent", unit.rent},
                 {"Faces", dice.Pick(kFaces)},
                 {"KeyType", "Deadbolt"},
                 {"KeyCode", "U" + SampleDigits(dice, 4)},
                 {"SecTenant", SampleDigits(dice, 4)},
                 {"Ad", fmt::format("{} bedroom in {}, quiet street, close to shops and the bus.",
                                    plan.bedrooms, town.city)},
                 {"Bedrooms", std::to_string(plan.bedrooms)},
                 {"Bathrooms", baths},
                 {"Garage", plan.label.empty() ? "1" : ""},
                 {"SqFt", 380 + 240 * plan.bedrooms + 10 * dice.Between(0, 20)},
                 {"Split", plan.bedrooms > 2},
                 {"Fireplace", dice.OneIn(4)},
                 {"WDHookup", plan.bedrooms > 1},
                 {"Smoke", dice.OneIn(6)},
                 {"PetAllowed", dice.OneIn(2)}});
    FurnishSampleUnit(books, unit, plan.bedrooms);
    return unit;
}

} // namespace

std::vector<SampleBuilding> WriteSampleProperty(SampleBooks& books, int units) {
    std::vector<SampleBuilding> buildings;
    for (int written = 0; written < units;) {
        const std::size_t index = buildings.size();
        const int count = std::min(kSizes[index % std::size(kSizes)], units - written);
        const SampleTown& town = SampleTowns()[index % SampleTowns().size()];
        const std::vector<UnitPlan> plans = PlanUnits(books.dice, count);

        SampleBuilding building;
        std::int64_t rent = 0;
        for (const UnitPlan& plan : plans)
            rent += plan.rent;
        building.marketValue =
            Currency::FromUnits(rent * 12 * books.dice.Between(12, 15) / 1000 * 1000);
        building.distance = books.dice.Between(6, 240) / 10.0;
        building.address = SampleAddress(books.dice, 5 * index);
        building.id = AddBuilding(books, town, index, count, building);
        AddOwners(books, building, index);
        for (const UnitPlan& plan : plans) {
            building.units.push_back(AddUnit(books, town, building, plan));
            building.units.back().idOwner = building.idOwner;
        }
        AddManager(books, building, index);
        buildings.push_back(std::move(building));
        written += count;
    }
    return buildings;
}

} // namespace store
