#include "store/SampleUpkeep.h"

#include <algorithm>

#include <fmt/core.h>

#include "store/SampleWords.h"

namespace store {

using platform::Currency;
using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

constexpr std::int16_t kBuildingKind = 28;

struct Job {
    std::string_view description;
    std::string_view room;      ///< "Kitchen", "Bathroom" or empty
    std::string_view appliance; ///< the type of appliance it is about, or empty
    int priority;
    int cost;
};

constexpr Job kJobs[] = {
    {"Kitchen faucet drips", "Kitchen", "", 3, 95},
    {"Refrigerator doesn't cool", "Kitchen", "Refrigerator", 1, 240},
    {"Bathroom fan is loud", "Bathroom", "", 4, 130},
    {"Front door lock sticks", "", "", 2, 85},
    {"Oven light and igniter", "Kitchen", "Range", 3, 160},
    {"No hot water", "Bathroom", "", 1, 420},
    {"Repaint living room after leak", "", "", 4, 610},
    {"Gutter came down in the storm", "", "", 2, 275},
    {"Smoke detector chirps", "", "", 1, 40},
};

/// Most of the work has been done.
constexpr std::string_view kStatuses[] = {"Open",   "Closed", "Vendor",    "Completed",
                                          "Closed", "Closed", "Completed", "Closed"};

std::int32_t RoomOf(const SampleUnit& unit, const Job& job) {
    if (job.room == "Kitchen") return unit.kitchen;
    return job.room == "Bathroom" ? unit.bath : 0;
}

std::int32_t ApplianceOf(const SampleUnit& unit, const Job& job) {
    const auto found =
        std::find_if(unit.appliances.begin(), unit.appliances.end(),
                     [&](const SampleAppliance& each) { return each.type == job.appliance; });
    return found == unit.appliances.end() ? 0 : found->id;
}

void AddHistory(SampleBooks& books, std::int32_t idWorkOrder, Date opened,
                std::string_view status) {
    constexpr std::string_view kSteps[] = {"Reported by the tenant", "Vendor called",
                                           "Work done and looked at"};
    const std::size_t steps = status == "Open" ? 1 : status == "Vendor" ? 2 : 3;
    for (std::size_t i = 0; i < steps; ++i) {
        const Date day =
            std::min(DateAdd(Interval::Day, static_cast<int>(2 * i), opened), books.today);
        books.rows.Add("WOItem", {{"IdWorkOrder", idWorkOrder},
                                  {"EntryDate", day.ToText()},
                                  {"Description", kSteps[i]}});
    }
}

void AddWorkOrder(SampleBooks& books, const SampleUnit& unit, std::size_t index) {
    SampleDice& dice = books.dice;
    const Job& job = kJobs[index % std::size(kJobs)];
    const std::string_view status = kStatuses[index % std::size(kStatuses)];
    const bool given = status != "Open";
    const bool over = status == "Completed" || status == "Closed";
    const int daysAgo = over ? dice.Between(30, 400) : dice.Between(1, 20);
    const Date opened = DateAdd(Interval::Day, -daysAgo, books.today);
    const Currency estimate = Currency::FromUnits(job.cost);
    const std::int32_t id = books.rows.Add(
        "WorkOrder",
        {{"IdUnit", unit.id},
         {"IdRoom", RoomOf(unit, job)},
         {"IdAppliance", ApplianceOf(unit, job)},
         {"IdVendor", given ? dice.Pick(books.accounts.vendors) : 0},
         {"IdOwner", unit.idOwner},
         {"Status", status},
         {"Initiator", "Tenant"},
         {"ShortDesc", job.description},
         {"Priority", job.priority},
         {"Permission", dice.OneIn(2)},
         {"Tech", given ? SampleGivenName(dice) : std::string_view()},
         {"Estimate", given ? estimate : Currency()},
         {"Limit", Currency::FromUnits(job.cost * 2)},
         {"Actual", over ? estimate + Currency::FromUnits(dice.Between(-20, 60)) : Currency()},
         {"DateOpened", opened.ToText()},
         {"DateClosed", over ? DateAdd(Interval::Day, dice.Between(4, 25), opened).ToText() : ""}});
    AddHistory(books, id, opened, status);
}

void AddContract(SampleBooks& books, const SampleBuilding& building, std::int32_t idAppliance,
                 std::int32_t idVendor, std::string_view type, std::string_view billType) {
    SampleDice& dice = books.dice;
    const Date starts = DateAdd(Interval::Month, -dice.Between(1, 11), books.today);
    books.rows.Add("SvcContract", {{"IdBuilding", building.id},
                                   {"IdAppliance", idAppliance},
                                   {"IdVendor", idVendor},
                                   {"SvcType", type},
                                   {"Rep", SampleGivenName(dice)},
                                   {"Phone", SamplePhone(dice, building.units.front().areaCode)},
                                   {"DateStart", starts.ToText()},
                                   {"SvcTerm", 1},
                                   {"SvcTermType", "Year(s)"},
                                   {"Amount", Currency::FromUnits(5 * dice.Between(9, 40))},
                                   {"BillTerm", 1},
                                   {"BillTermType", "Month(s)"},
                                   {"BillType", billType},
                                   {"DatePaidThru", books.today.ToText()}});
}

void AddContracts(SampleBooks& books, const SampleBuilding& building, std::size_t index) {
    const SampleAccounts& accounts = books.accounts;
    if (building.units.size() > 1) {
        AddContract(books, building, 0, accounts.landscaper, "Grounds", "Mail");
        AddContract(books, building, building.units.front().appliances.front().id,
                    accounts.applianceStore, "Appliance service", "Auto CC");
        books.rows.Add("Contact", {{"dbType", kBuildingKind},
                                   {"IdRelated", building.id},
                                   {"Description", "Keeps the spare keys"},
                                   {"LastName", SampleSurname(books.dice)},
                                   {"FirstName", SampleGivenName(books.dice)}});
    } else if (index % 2 == 0) {
        AddContract(books, building, 0, accounts.pestControl, "Pest control", "Auto Debit");
    }
}

/// Adds trips to the buildings over the past months, each beginning where the last one ended.
void AddTrips(SampleBooks& books, const std::vector<SampleBuilding>& buildings) {
    if (buildings.empty()) return;
    constexpr std::string_view kPurposes[] = {"Inspection", "Collect rent", "Meet the plumber",
                                              "Show the unit"};
    const std::int32_t user = books.rows.Add("Users", {{"UserName", "Owner"}});
    const int trips = static_cast<int>(std::min<std::size_t>(12 + buildings.size() / 4, 200));
    double odometer = 41'230;
    for (int i = trips; i > 0; --i) {
        const SampleBuilding& building = books.dice.Pick(buildings);
        const double miles = 2 * building.distance;
        books.rows.Add("Mileage",
                       {{"EntryDate", DateAdd(Interval::Day, -3 * i, books.today).ToText()},
                        {"Vehicle", kSampleCar},
                        {"Destination", building.address},
                        {"Purpose", books.dice.Pick(kPurposes)},
                        {"OBegin", odometer},
                        {"OEnd", odometer + miles},
                        {"Mileage", miles},
                        {"IdBuilding", building.id},
                        {"idUser", user}});
        odometer += miles;
    }
}

} // namespace

void WriteSampleUpkeep(SampleBooks& books, const std::vector<SampleBuilding>& buildings) {
    std::size_t units = 0;
    std::size_t orders = 0;
    for (std::size_t i = 0; i < buildings.size(); ++i) {
        for (const SampleUnit& unit : buildings[i].units) {
            if (units++ % 2 == 0) AddWorkOrder(books, unit, orders++);
        }
        AddContracts(books, buildings[i], i);
    }
    AddTrips(books, buildings);
}

} // namespace store
