#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"

namespace shell {

/// One entry of a list beside the grid: what it shows, and the number behind it.
using core::Choice;

/// What the filter controls of the main window say. "All" and "None" mean no filter.
struct ViewFilter {
    std::string status = "All";
    bool showHidden = false;
    // Transactions only: days back (0 for all), the field to filter by, and the chosen item of it.
    std::int32_t days = 90;
    std::string field = "None";
    Choice item{"All", 0};
};

enum class IdColumn { First, Omitted };

/// The statement of the main view of a record kind, empty for a kind that has none. Records marked
/// hidden are left out unless asked for; transactions can't be hidden.
std::string BuildViewSql(std::int16_t kind, const ViewFilter& filter, IdColumn idColumn);

/// The words of the view list of a record kind, "All" first. Those that come from the records are
/// read from the database.
std::vector<std::string> ViewWords(std::int16_t kind);

/// The periods and the filter fields that the transactions offer.
std::span<const Choice> Periods();
std::span<const std::string_view> FilterFields();

/// The items of one filter field, "All" first, read from the database.
std::vector<Choice> FilterItems(std::string_view field);

} // namespace shell
