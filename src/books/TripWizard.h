#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "books/TripPlan.h"

namespace books {

// What the wizard that reconstructs a mileage log reads from the books and writes to them. All
// throw on failure.

/// Returns the categories of the period's transactions that name a building, by name.
std::vector<std::string> PlanCategories(platform::Date from, platform::Date to);

/// Returns the vehicles of the log, or the one of the settings if it has none, in use for the whole
/// period and with equal shares.
std::vector<PlanVehicle> PlanVehicles(platform::Date from, platform::Date to);

/// Returns the buildings that the period's transactions name, by address.
std::vector<PlanBuilding> PlanBuildings(platform::Date from, platform::Date to);

/// Returns the transactions of the plan's period, categories and buildings, by date.
std::vector<TripOccasion> PlanOccasions(const TripPlan& plan);

/// Returns how many trips the log holds in a period.
std::int64_t LoggedTrips(platform::Date from, platform::Date to);

/// Writes the trips, all or none of them. `logged` is how many trips of the period the user knows
/// of: if the log holds another number by now, another program has written to it, and a
/// platform::ConflictError is thrown.
void SubmitTrips(const TripPlan& plan, const std::vector<PlannedTrip>& trips, std::int64_t logged);

} // namespace books
