#include "books/TripWizard.h"

#include <fmt/core.h>

#include "books/TellLists.h"
#include "books/TripLog.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/values/Errors.h"

namespace books {

using platform::Date;
using platform::Recordset;
using platform::dialect::QuoteDate;
using platform::dialect::QuoteText;

namespace {

std::string Within(std::string_view field, Date from, Date to) {
    return fmt::format("(DateValue({0}) >= {1}) AND (DateValue({0}) <= {2}) ", field,
                       QuoteDate(from), QuoteDate(to));
}

std::string Joined(const std::vector<std::string>& conditions) {
    std::string text;
    for (const std::string& condition : conditions)
        text += (text.empty() ? "" : "OR ") + condition;
    return text;
}

} // namespace

std::vector<std::string> PlanCategories(Date from, Date to) {
    Recordset rows =
        core::Read("SELECT DISTINCT TaxCategory FROM Transactions WHERE IdBuilding <> 0 AND " +
                   Within("DateEffective", from, to) + "ORDER BY TaxCategory");
    std::vector<std::string> categories;
    for (; !rows.Eof(); rows.MoveNext()) {
        if (std::string text = platform::TextOf(rows["TaxCategory"]); !text.empty())
            categories.push_back(std::move(text));
    }
    return categories;
}

std::vector<PlanVehicle> PlanVehicles(Date from, Date to) {
    constexpr double kWhole = 100;
    std::vector<core::Choice> known = LoggedVehicles().Rows();
    if (known.empty()) known = KnownVehicles().Rows();
    std::vector<PlanVehicle> vehicles;
    vehicles.reserve(known.size());
    for (const core::Choice& row : known)
        vehicles.push_back({.name = row.text, .from = from, .to = to});
    for (PlanVehicle& vehicle : vehicles)
        vehicle.percent = kWhole / static_cast<double>(vehicles.size());
    return vehicles;
}

std::vector<PlanBuilding> PlanBuildings(Date from, Date to) {
    Recordset rows = core::Read(
        "SELECT DISTINCT Building.IdBuilding, Building.Address, Building.Distance "
        "FROM Building, Transactions WHERE "
        "(Transactions.IdBuilding = Building.IdBuilding) AND " +
        Within("Transactions.DateEffective", from, to) + "ORDER BY Building.Address");
    std::vector<PlanBuilding> buildings;
    for (; !rows.Eof(); rows.MoveNext()) {
        buildings.push_back({rows["IdBuilding"].AsLong(), platform::TextOf(rows["Address"]),
                             NumberOf(rows["Distance"]), true});
    }
    return buildings;
}

std::vector<TripOccasion> PlanOccasions(const TripPlan& plan) {
    std::vector<std::string> categories;
    categories.reserve(plan.categories.size());
    for (const std::string& category : plan.categories)
        categories.push_back("TaxCategory=" + QuoteText(category) + " ");
    std::vector<std::string> buildings;
    for (const PlanBuilding& building : plan.buildings) {
        if (building.isUsed) buildings.push_back(fmt::format("IdBuilding = {} ", building.id));
    }
    if (categories.empty() || buildings.empty()) return {};
    Recordset rows =
        core::Read("SELECT DateEffective, Description, IdBuilding FROM Transactions WHERE " +
                   Within("Transactions.DateEffective", plan.from, plan.to) + "AND ( " +
                   Joined(categories) + ") AND ( " + Joined(buildings) +
                   ") ORDER BY DateValue(Transactions.DateEffective), IdTransaction");
    std::vector<TripOccasion> occasions;
    for (; !rows.Eof(); rows.MoveNext()) {
        occasions.push_back({Date::Parse(platform::TextOf(rows["DateEffective"])),
                             platform::TextOf(rows["Description"]), rows["IdBuilding"].AsLong()});
    }
    return occasions;
}

std::int64_t LoggedTrips(Date from, Date to) {
    return core::ReadValue("SELECT Count(*) FROM Mileage WHERE " + Within("EntryDate", from, to))
        .AsLong();
}

void SubmitTrips(const TripPlan& plan, const std::vector<PlannedTrip>& trips, std::int64_t logged) {
    platform::UnitOfWork unit(core::App().Connection);
    if (LoggedTrips(plan.from, plan.to) != logged) {
        throw platform::ConflictError(
            "Other trips of this period were written to the mileage log in the meantime. Nothing "
            "was submitted; please look at the log first.");
    }
    std::int32_t id = trips.empty() ? 0 : core::NextIds(static_cast<std::int32_t>(trips.size()));
    for (const PlannedTrip& trip : trips) {
        Recordset row = core::NewRow("Mileage");
        SetNewTripFields(row);
        row["IdMileage"].Set(id++);
        row["EntryDate"].Set(trip.date.ToText());
        row["Vehicle"].Set(trip.vehicle);
        row["OBegin"].Set(trip.begin);
        row["OEnd"].Set(trip.end);
        row["Mileage"].Set(trip.mileage);
        row["Destination"].Set(trip.destination);
        row["Purpose"].Set(trip.purpose);
        row["Meal"].Set(platform::Currency());
        row["IdBuilding"].Set(trip.idBuilding);
        row.Update();
    }
    unit.Commit();
    TellLists({core::kMileage});
}

} // namespace books
