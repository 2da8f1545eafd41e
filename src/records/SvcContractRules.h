#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"

namespace records {

/// The choices for a service contract's periods and its billing, separated by commas; a new
/// contract starts with the first.
inline constexpr std::string_view kContractPeriods = "Month(s),Year(s)";
inline constexpr std::string_view kBillTypes = "Mail,Auto CC,Auto Debit,Other";

/// Returns the errors in a service contract's entries, a line each; empty if they can be saved.
std::vector<std::string> SvcContractErrors(std::int32_t idBuilding, std::int32_t idVendor);

/// Fills a list with the appliances of all units of a building; selects as FillChoices does.
void FillAppliancesOfBuilding(core::ChoiceList& list, std::int32_t idBuilding,
                              std::int32_t selectedId = 0);

} // namespace records
