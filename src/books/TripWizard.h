#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "books/TripPlan.h"

namespace books {

// The reads and writes of the wizard that reconstructs a mileage log. All of these throw on
// failure.

/// Returns the categories of the period's transactions that have a building, by name.
std::vector<std::string> PlanCategories(platform::Date from, platform::Date to);

/// Returns the vehicles of the log, or the one in the settings if it has none, in use for the whole
/// period and with equal shares.
std::vector<PlanVehicle> PlanVehicles(platform::Date from, platform::Date to);

/// Returns the buildings of the period's transactions, by address.
std::vector<PlanBuilding> PlanBuildings(platform::Date from, platform::Date to);

/// Returns the transactions of the plan's period, categories and buildings, by date.
std::vector<TripOccasion> PlanOccasions(const TripPlan& plan);

/// Returns the number of trips in the log for a period.
std::int64_t LoggedTrips(platform::Date from, platform::Date to);

/// Writes all of the trips, or none of them. `logged` is the number of trips in the period that the
/// user was shown: if the log holds another number by now, another program has written to it, and a
/// platform::ConflictError is thrown.
void SubmitTrips(const TripPlan& plan, const std::vector<PlannedTrip>& trips, std::int64_t logged);

} // namespace books
