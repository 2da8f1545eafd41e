#include "books/TripPlan.h"

#include <algorithm>

#include <fmt/core.h>

#include "books/Odometer.h"
#include "core/Descriptions.h"
#include "core/RecordKinds.h"

namespace books {

using platform::Date;

namespace {

constexpr double kPercent = 0.01;

std::string DestinationOf(std::int32_t idBuilding) {
    std::string text = core::GetDescription(core::kBuilding, idBuilding);
    // Without a city or state the long form is empty.
    return text.empty() ? core::GetDescription(core::kBuilding, idBuilding, 0, true) : text;
}

/// Returns the odometer reading on a day, if the vehicle is used evenly over the period.
double EvenReading(const TripPlan& plan, const PlanVehicle& vehicle, Date day) {
    const double passed = day.Serial() - plan.from.Serial();
    const double total = plan.to.Serial() - plan.from.Serial() + 1;
    return vehicle.begin + passed / total * (vehicle.end - vehicle.begin);
}

bool IsUsedOn(const PlanVehicle& vehicle, Date day) {
    return vehicle.isUsed && vehicle.from <= day && day <= vehicle.to;
}

} // namespace

double SeededChance::operator()() {
    constexpr double kValues = 4294967296.0; // of 32 bits
    return static_cast<double>(static_cast<std::uint32_t>(engine_())) / kValues;
}

const PlanVehicle* PickVehicle(const TripPlan& plan, Date day, const Chance& chance) {
    double sum = 0;
    for (const PlanVehicle& vehicle : plan.vehicles) {
        if (IsUsedOn(vehicle, day)) sum += vehicle.percent;
    }
    const double wanted = chance() * sum;
    const PlanVehicle* last = nullptr;
    double running = 0;
    for (const PlanVehicle& vehicle : plan.vehicles) {
        if (!IsUsedOn(vehicle, day)) continue;
        last = &vehicle;
        running += vehicle.percent;
        if (running >= wanted) break;
    }
    return last;
}

double PickDistance(const TripPlan& plan, std::int32_t idBuilding, const Chance& chance) {
    const auto building = std::ranges::find(plan.buildings, idBuilding, &PlanBuilding::id);
    const double distance = building == plan.buildings.end() ? 0 : building->distance;
    const double variance = plan.variance * kPercent;
    return distance * ((1 - variance) + 2 * variance * chance());
}

std::vector<PlannedTrip> PlanTrips(const TripPlan& plan, const std::vector<TripOccasion>& occasions,
                                   const Chance& chance) {
    std::vector<PlannedTrip> trips;
    Date day;
    for (const TripOccasion& occasion : occasions) {
        PlannedTrip trip;
        trip.date = occasion.date;
        trip.purpose = occasion.description;
        trip.idBuilding = occasion.idBuilding;
        trip.destination = DestinationOf(occasion.idBuilding);
        const bool isFirst = occasion.date != day;
        day = occasion.date;
        if (isFirst) {
            const PlanVehicle* const vehicle = PickVehicle(plan, day, chance);
            if (vehicle == nullptr) continue;
            trip.vehicle = vehicle->name;
            trip.begin = Tenths(EvenReading(plan, *vehicle, day));
        } else {
            // If no vehicle was found for the first trip of a day, there is none for the day's
            // other trips either.
            if (trips.empty() || trips.back().date != day) continue;
            trip.vehicle = trips.back().vehicle;
            trip.begin = trips.back().end;
        }
        trip.mileage = Tenths(PickDistance(plan, occasion.idBuilding, chance));
        trip.end = Tenths(trip.begin + trip.mileage);
        trips.push_back(std::move(trip));
    }
    return trips;
}

std::vector<std::string> PeriodErrors(const TripPlan& plan) {
    std::vector<std::string> lines;
    if (!plan.from.IsSet() || !plan.to.IsSet()) {
        lines.emplace_back("The period needs a start and an end date.");
    } else if (plan.to < plan.from) {
        lines.emplace_back("The period must not end before it starts.");
    }
    if (plan.categories.empty())
        lines.emplace_back("At least one category of transactions must be ticked.");
    return lines;
}

std::vector<std::string> VehicleErrors(const TripPlan& plan) {
    std::vector<std::string> lines;
    double sum = 0;
    bool isAnyUsed = false;
    for (const PlanVehicle& vehicle : plan.vehicles) {
        if (!vehicle.isUsed) continue;
        isAnyUsed = true;
        sum += vehicle.percent;
        if (vehicle.end < vehicle.begin)
            lines.push_back(
                fmt::format("{}: the ending odometer reading must not be below the "
                            "starting one.",
                            vehicle.name));
        if (!vehicle.from.IsSet() || !vehicle.to.IsSet() || vehicle.to < vehicle.from)
            lines.push_back(
                fmt::format("{}: the start date must not be after the end date.", vehicle.name));
    }
    if (!isAnyUsed) lines.emplace_back("At least one vehicle must be ticked.");
    if (isAnyUsed && sum <= 0)
        lines.emplace_back("The ticked vehicles need a share above 0 percent.");
    return lines;
}

std::vector<std::string> BuildingErrors(const TripPlan& plan) {
    std::vector<std::string> lines;
    if (std::ranges::none_of(plan.buildings, &PlanBuilding::isUsed))
        lines.emplace_back("At least one building must be ticked.");
    if (plan.variance < 0 || plan.variance > 100)
        lines.emplace_back("The variance must be between 0 and 100 percent.");
    return lines;
}

} // namespace books
