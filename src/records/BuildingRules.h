#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"
#include "platform/values/Currency.h"

namespace records {

/// The words that a unit's status and an association's payment are chosen from, parted by commas.
inline constexpr std::string_view kUnitStatuses = "Hold,Avaliable,Leased";
inline constexpr std::string_view kHoaFrequencies = "Monthly,Quarterly,Annual";

/// The years of depreciation that a new building proposes.
inline constexpr std::string_view kUsualDeprPeriod = "27.5";

/// What is wrong with a building, a line each.
std::vector<std::string> BuildingErrors(std::string_view address);

/// The units of a building by their labels. Failures are thrown.
std::vector<core::Choice> UnitsOf(std::int32_t idBuilding);
/// Whether there are such a building and such a unit.
bool AreStored(std::int32_t idBuilding, std::int32_t idUnit);

/// Writes a new unit of a building, on hold and named "<new>", tells the screens and answers its
/// id. Failures are thrown.
std::int32_t MakeNewUnit(std::int32_t idBuilding);

/// What a building of this market value is worth without what its mortgages still owe.
platform::Currency EquityAt(platform::Currency marketValue, std::int32_t idBuilding);

/// Why there is no depreciation schedule of this basis over so many years; nothing when there is.
std::optional<std::string> DepreciationFault(platform::Currency basis, double years);

/// Says that a further unit needs a number, when the present one has none.
void TellUnitNumberMissing(std::string_view unit);
/// Asks whether a property of one unit is to become a building of several.
bool AskToConvert();

} // namespace records
