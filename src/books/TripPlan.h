#pragma once

#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "platform/values/Date.h"

namespace books {

/// A vehicle of a reconstructed log. Its readings are spread evenly over the period.
struct PlanVehicle {
    std::string name;
    double begin = 1;   ///< the reading on the first day of the period
    double end = 10000; ///< the reading at its end
    /// The days between which it was used, both included.
    platform::Date from = {};
    platform::Date to = {};
    double percent = 100; ///< its share of the trips, as a weight
    bool isUsed = true;

    friend bool operator==(const PlanVehicle&, const PlanVehicle&) = default;
};

/// A building that trips lead to.
struct PlanBuilding {
    std::int32_t id = 0;
    std::string address;
    double distance = 0; ///< miles of a trip
    bool isUsed = true;

    friend bool operator==(const PlanBuilding&, const PlanBuilding&) = default;
};

struct TripPlan {
    /// Both included.
    platform::Date from;
    platform::Date to;
    std::vector<std::string> categories;
    std::vector<PlanVehicle> vehicles;
    std::vector<PlanBuilding> buildings;
    /// How far a trip's length may be from the building's distance, in percent of it.
    double variance = 15;

    friend bool operator==(const TripPlan&, const TripPlan&) = default;
};

/// A transaction that a trip is made up for.
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

/// Returns a number from 0 up to, but not including, 1.
using Chance = std::function<double()>;

/// The one source of chance of a plan: the same seed gives the same numbers on every machine.
class SeededChance {
  public:
    explicit SeededChance(std::uint32_t seed) : engine_(seed) {}
    double operator()();

  private:
    std::mt19937 engine_;
};

/// Returns the vehicle for a day by the weights of those in use then; null if there is none.
const PlanVehicle* PickVehicle(const TripPlan& plan, platform::Date day, const Chance& chance);

/// Returns the length of a trip to a building, evenly spread around its distance.
double PickDistance(const TripPlan& plan, std::int32_t idBuilding, const Chance& chance);

/// Makes up a trip for each occasion; they are in the order of their dates. The first trip of a day
/// starts where an even use of its vehicle stands on that day, a further one where the last one
/// ended. A day on which no vehicle is in use has no trips.
std::vector<PlannedTrip> PlanTrips(const TripPlan& plan, const std::vector<TripOccasion>& occasions,
                                   const Chance& chance);

/// What is wrong with a part of a plan, a line each.
std::vector<std::string> PeriodErrors(const TripPlan& plan);
std::vector<std::string> VehicleErrors(const TripPlan& plan);
std::vector<std::string> BuildingErrors(const TripPlan& plan);

} // namespace books
