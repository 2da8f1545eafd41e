#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"

namespace records {

/// The words that a service contract's periods and its way of billing are chosen from, parted by
/// commas; the first is a new one's.
inline constexpr std::string_view kContractPeriods = "Month(s),Year(s)";
inline constexpr std::string_view kBillTypes = "Mail,Auto CC,Auto Debit,Other";

/// What is wrong with a service contract, a line each.
std::vector<std::string> SvcContractErrors(std::int32_t idBuilding, std::int32_t idVendor);

/// Offers the appliances of all units of a building, for FillChoices' selection.
void FillAppliancesOfBuilding(core::ChoiceList& list, std::int32_t idBuilding,
                              std::int32_t selectedId = 0);

} // namespace records
