#include <string_view>

#include <fmt/core.h>

#include "store/SampleProperty.h"
#include "store/SampleWords.h"

namespace store {

using platform::Currency;
using platform::DateAdd;
using platform::Interval;

namespace {

std::int32_t AddRoom(SampleBooks& books, const SampleUnit& unit, std::string_view type,
                     std::string_view flooring) {
    SampleDice& dice = books.dice;
    return books.rows.Add("Room", {{"IdUnit", unit.id},
                                   {"RoomType", type},
                                   {"Dimensions", fmt::format("{} x 12", dice.Between(8, 16))},
                                   {"Ceiling", "8 ft"},
                                   {"Flooring", flooring},
                                   {"Lighting", "Ceiling light"},
                                   {"Windows", std::to_string(dice.Between(1, 3))},
                                   {"PaintCode", "W-" + SampleDigits(dice, 3)},
                                   {"Phone", dice.OneIn(3)},
                                   {"Cable", dice.OneIn(2)},
                                   {"Network", dice.OneIn(2)}});
}

void AddAppliance(SampleBooks& books, SampleUnit& unit, std::string_view type, int cost) {
    constexpr std::string_view kMakers[] = {"Norholt", "Brightwell", "Kestner", "Avalane"};
    constexpr std::string_view kColors[] = {"White", "Black", "Stainless"};
    SampleDice& dice = books.dice;
    const std::int32_t id = books.rows.Add(
        "Appliance",
        {{"IdUnit", unit.id},
         {"IdVendor", books.accounts.applianceStore},
         {"ApplianceType", type},
         {"Manufacturer", dice.Pick(kMakers)},
         {"Model", fmt::format("{}-{}", type.substr(0, 1), SampleDigits(dice, 3))},
         {"SN", SampleDigits(dice, 8)},
         {"Color", dice.Pick(kColors)},
         {"Warranty", "1 year"},
         {"Source", "Corner Appliance Warehouse"},
         {"PurchaseDate", DateAdd(Interval::Day, -dice.Between(60, 2800), books.today).ToText()},
         {"Cost", Currency::FromUnits(cost + dice.Between(0, 140))},
         {"DeprMethod", "Straight Line"},
         {"DeprTerm", 5}});
    unit.appliances.push_back({id, std::string(type)});
}

void AddContents(SampleBooks& books, const SampleUnit& unit) {
    struct Item {
        std::string_view description;
        int value;
    };
    constexpr Item kItems[] = {
        {"Sofa", 480}, {"Dining table, four chairs", 350}, {"Bed frame", 260}};
    for (const Item& item : kItems) {
        books.rows.Add("Content", {{"IdUnit", unit.id},
                                   {"Description", item.description},
                                   {"SN", SampleDigits(books.dice, 5)},
                                   {"Value", Currency::FromUnits(item.value)}});
    }
}

} // namespace

void FurnishSampleUnit(SampleBooks& books, SampleUnit& unit, int bedrooms) {
    AddRoom(books, unit, "Living Room", "Oak");
    unit.kitchen = AddRoom(books, unit, "Kitchen", "Vinyl");
    unit.bath = AddRoom(books, unit, "Bathroom", "Tile");
    for (int i = 0; i < bedrooms; ++i)
        AddRoom(books, unit, i == 0 ? "Master Bedroom" : "Bedroom", "Carpet");
    AddAppliance(books, unit, "Range", 520);
    AddAppliance(books, unit, "Refrigerator", 690);
    if (bedrooms > 1) AddAppliance(books, unit, "Washer", 430);
    if (books.dice.OneIn(5)) AddContents(books, unit);
}

} // namespace store
