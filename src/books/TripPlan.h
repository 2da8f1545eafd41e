#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/values/Date.h"

namespace books {

/// A vehicle of a reconstructed log. Its mileage is spread evenly over the period.
struct PlanVehicle {
    std::string name;
    double begin = 1;   ///< the reading on the first day of the period
    double end = 10000; ///< the reading at its end
    /// The first and last day of its use.
    platform::Date from = {};
    platform::Date to = {};
    double percent = 100; ///< its share of the trips, as a weight
    bool isUsed = true;

    friend bool operator==(const PlanVehicle&, const PlanVehicle&) = default;
};

/// A destination of trips.
struct PlanBuilding {
    std::int32_t id = 0;
    std::string address;
    double distance = 0; ///< miles of a trip
    bool isUsed = true;

    friend bool operator==(const PlanBuilding&, const PlanBuilding&) = default;
};

struct TripPlan {
    /// The first and last day.
    platform::Date from;
    platform::Date to;
    std::vector<std::string> categories;
    std::vector<PlanVehicle> vehicles;
    std::vector<PlanBuilding> buildings;
    /// How far a trip's length may be from the building's distance, in percent of it.
    double variance = 15;

    friend bool operator==(const TripPlan&, const TripPlan&) = default;
};

/// A transaction for which a trip is reconstructed.
struct TripOccasion {
    platform::Date date;
    std::string description;
    std::int32_t idBuilding = 0;
};

/// A trip of a reconstructed log. Readings have one decimal.
struct PlannedTrip {
    platform::Date date;
    std::string vehicle;
    double begin = 0;
    double end = 0;
    double mileage = 0;
    std::string destination;
    std::string purpose;
    std::int32_t idBuilding = 0;

    friend bool operator==(const PlannedTrip&, const PlannedTrip&) = default;
};

/// Returns a number of at least 0 and less than 1.
using Chance = std::function<double()>;

/// A plan's only source of random numbers: the same seed gives the same numbers on every machine.
class SeededChance {
  public:
    explicit SeededChance(std::uint32_t seed) : engine_(seed) {}
    double operator()();

  private:
    std::mt19937 engine_;
};

/// Returns a vehicle for a day, at random by the shares of the vehicles in use then; null if no
/// vehicle is in use.
const PlanVehicle* PickVehicle(const TripPlan& plan, platform::Date day, const Chance& chance);

/// Returns the length of a trip to a building, spread evenly around its distance.
double PickDistance(const TripPlan& plan, std::int32_t idBuilding, const Chance& chance);

/// Makes up a trip for each occasion; the occasions are in order of date. The first trip of a day
/// starts at the reading of an even use of its vehicle, later ones where the last one ended. A day
/// without a vehicle in use has no trips.
std::vector<PlannedTrip> PlanTrips(const TripPlan& plan, const std::vector<TripOccasion>& occasions,
                                   const Chance& chance);

/// Return the errors in a part of a plan, a line each.
std::vector<std::string> PeriodErrors(const TripPlan& plan);
std::vector<std::string> VehicleErrors(const TripPlan& plan);
std::vector<std::string> BuildingErrors(const TripPlan& plan);

} // namespace books
