#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ChoiceList.h"
#include "core/RecordKinds.h"

namespace shell {

/// One entry of a filter: its text and its number.
using core::Choice;

/// The filters of the main window. "All" and "None" mean no filter.
struct ViewFilter {
    std::string status = "All";
    bool showHidden = false;
    // Transactions only: days back (0 for all), the field to filter by, and the chosen item of it.
    std::int32_t days = 90;
    std::string field = "None";
    Choice item{"All", 0};
};

enum class IdColumn { First, Omitted };

/// Returns the statement of the main view of a record kind; empty if the kind has none. Hidden
/// records are left out unless asked for; transactions can't be hidden.
std::string BuildViewSql(core::RecordKind kind, const ViewFilter& filter, IdColumn idColumn);

/// Returns the entries of the view list of a record kind, "All" first. Those that come from the
/// records are read from the database.
std::vector<std::string> ViewWords(core::RecordKind kind);

/// Returns the filter fields for transactions.
std::span<const std::string_view> FilterFields();

/// Returns the items of one filter field, "All" first, read from the database.
std::vector<Choice> FilterItems(std::string_view field);

} // namespace shell
