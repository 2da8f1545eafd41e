#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"

namespace records {

// Returns the errors in the entries, a line each; empty if they can be saved.

std::vector<std::string> WorkOrderErrors(std::string_view shortDesc);
/// Checks an entry of a work order's history.
std::vector<std::string> HistoryErrors(std::string_view description);

/// Fills a list with the owners of the unit's building; selects as FillChoices does.
void FillOwnersOfUnit(core::ChoiceList& list, std::int32_t idUnit, std::int32_t selectedId = 0);

} // namespace records
