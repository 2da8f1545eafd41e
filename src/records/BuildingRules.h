#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"
#include "platform/values/Currency.h"

namespace records {

/// The choices for how often an association is paid, separated by commas.
inline constexpr std::string_view kHoaFrequencies = "Monthly,Quarterly,Annual";

/// The depreciation period proposed for a new building, in years.
inline constexpr std::string_view kUsualDeprPeriod = "27.5";

/// Returns the errors in a building's entries, a line each; empty if they can be saved.
std::vector<std::string> BuildingErrors(std::string_view address);

/// Returns the units of a building, sorted by label. Throws on failure.
std::vector<core::Choice> UnitsOf(std::int32_t idBuilding);
/// Returns whether both the building and the unit are stored.
bool AreStored(std::int32_t idBuilding, std::int32_t idUnit);

/// Adds a unit to a building, on hold and named "<new>", broadcasts the change and returns the
/// unit's id. Throws on failure.
std::int32_t MakeNewUnit(std::int32_t idBuilding);

/// Returns the building's equity: its market value less what is still owed on its mortgages.
platform::Currency EquityAt(platform::Currency marketValue, std::int32_t idBuilding);

/// Returns why this basis can't be depreciated over so many years; empty if it can.
std::optional<std::string> DepreciationFault(platform::Currency basis, double years);

/// Tells the user that the present unit needs a number before another is added, if it has none.
void TellUnitNumberMissing(std::string_view unit);
/// Asks whether to turn a property of one unit into a building of several.
bool AskToConvert();

} // namespace records
