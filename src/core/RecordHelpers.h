#pragma once

#include <cstdint>
#include <string_view>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace core {

/// Puts a message on the home page, dated today unless a date is given. An empty text adds nothing;
/// a long one is cut to 100 characters.
void AddAlert(std::string_view text, platform::Date date = {});

/// Returns the highest end reading among the trips of a vehicle; 0 if it has no trips.
float GetVehicleMaxOdometer(std::string_view vehicle);

/// Returns the distance to a building; 0 if it isn't known.
float GetBuildingDistance(std::int32_t idBuilding);

/// Returns a building's market value less the present value of its mortgages; what is unset counts
/// as 0.
double GetBuildingEquity(std::int32_t idBuilding);

/// Returns the rent that a unit is offered for; 0 if it isn't known.
platform::Currency GetUnitRent(std::int32_t idUnit);

} // namespace core
