#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "books/AutoEvent.h"

namespace books {

/// What the event screen holds that can be wrong.
struct AutoEventEntry {
    std::string description;
    EventType type = EventType::Scheduled;
    double intervalPeriod = 0;
};

/// What is wrong with it, a line each.
std::vector<std::string> AutoEventErrors(const AutoEventEntry& entry);

/// The list of all events: scheduled ones with the day of their last run. The id stands in the
/// first column.
std::string_view AutoEventListSql();

} // namespace books
