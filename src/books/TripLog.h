#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/ChoiceList.h"
#include "platform/database/Recordset.h"
#include "platform/values/Date.h"

namespace books {

/// A choice of the log's period; 0 days for all trips.
struct TripPeriod {
    std::string_view text;
    std::int32_t days;
};

inline constexpr std::array<TripPeriod, 7> kTripPeriods = {{{"Last 30 days", 30},
                                                            {"Last 60 days", 60},
                                                            {"Last 90 days", 90},
                                                            {"Last 180 days", 180},
                                                            {"Last Year", 365},
                                                            {"Last 2 Years", 731},
                                                            {"All", 0}}};

/// The field that the log is filtered by.
enum class TripField { None, Vehicle, Building };

struct TripFilter {
    std::int32_t days = 0;
    TripField field = TripField::None;
    /// A vehicle's name or a building's id; "All" doesn't filter.
    core::Choice item = {"All", 0};
};

/// Returns the statement of the log: the id, then the visible columns, the latest trip first.
std::string TripListSql(const TripFilter& filter);

/// Returns the choices of a filter, "All" first. Throws on failure.
core::ChoiceList TripFilterItems(TripField field);

/// Return the destinations or vehicles entered so far, by name; the vehicles include the one in the
/// settings.
core::ChoiceList KnownDestinations();
core::ChoiceList KnownVehicles();

/// Sets the fields of a new trip's row that the user doesn't enter.
void SetNewTripFields(platform::Recordset& trip);

} // namespace books
