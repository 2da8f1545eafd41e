#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"

namespace records {

/// The words that a work order's status is chosen from, parted by commas; the first is a new one's.
inline constexpr std::string_view kWorkOrderStatuses = "Open,Vendor,Completed,Closed";

// What is wrong with what was entered, a line each.

std::vector<std::string> WorkOrderErrors(std::string_view shortDesc);
/// Of an entry of a work order's history.
std::vector<std::string> HistoryErrors(std::string_view description);

/// Offers the owners of the building that a unit stands in, for FillChoices' selection.
void FillOwnersOfUnit(core::ChoiceList& list, std::int32_t idUnit, std::int32_t selectedId = 0);

} // namespace records
