#include "books/AutoEventRules.h"

#include "platform/values/Text.h"

namespace books {

std::vector<std::string> AutoEventErrors(const AutoEventEntry& entry) {
    std::vector<std::string> errors;
    if (platform::Trim(entry.description).empty()) {
        errors.emplace_back("No description was entered for this event.");
    }
    if (entry.type == EventType::Scheduled && entry.intervalPeriod < 1) {
        errors.emplace_back("Interval period must be greater then zero.");
    }
    return errors;
}

std::string_view AutoEventListSql() {
    return "SELECT IdAutoEvent, Description, Enabled, LastRun AS [Last Ran] "
           "FROM AutoEvent WHERE EventType = 1 "
           "UNION "
           "SELECT IdAutoEvent, Description, Enabled, 'n/a' AS [Last Ran] "
           "FROM AutoEvent WHERE EventType = 2 ";
}

} // namespace books
