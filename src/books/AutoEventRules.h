#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "books/AutoEvent.h"

namespace books {

/// The entries of the event screen that can be wrong.
struct AutoEventEntry {
    std::string description;
    EventType type = EventType::Scheduled;
    double intervalPeriod = 0;
};

/// Returns the errors in the entries, a line each; empty if they can be saved.
std::vector<std::string> AutoEventErrors(const AutoEventEntry& entry);

/// Returns the select of all events, scheduled ones with the date of their last run. The id is in
/// the first column.
std::string_view AutoEventListSql();

} // namespace books
