#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/ChoiceList.h"
#include "platform/database/Recordset.h"
#include "platform/values/Date.h"

namespace books {

/// The field that the log is filtered by.
enum class TripField { None, Vehicle, Building };

struct TripFilter {
    std::int32_t days = 0; ///< back from today, 0 for all trips
    TripField field = TripField::None;
    /// A vehicle's name or a building's id; "All" doesn't filter.
    core::Choice item = {"All", 0};
};

/// Returns the statement of the log: the id, then the visible columns, the latest trip first.
std::string TripListSql(const TripFilter& filter);

/// Returns the choices of a filter, "All" first. Throws on failure.
core::ChoiceList TripFilterItems(TripField field);

/// Return the destinations or vehicles of the log, by name. KnownVehicles adds the vehicle of the
/// settings.
core::ChoiceList KnownDestinations();
core::ChoiceList LoggedVehicles();
core::ChoiceList KnownVehicles();

/// Sets the fields of a new trip's row that the user doesn't enter.
void SetNewTripFields(platform::Recordset& trip);

} // namespace books
