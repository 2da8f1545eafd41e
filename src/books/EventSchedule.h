#pragma once

#include <cstdint>
#include <optional>

#include "books/AutoEvent.h"
#include "platform/values/Date.h"

namespace books {

/// When a scheduled event runs: every `period` intervals, or on that day of each month.
struct EventSchedule {
    IntervalType interval = IntervalType::Month;
    std::int16_t period = 0;
    /// The day of the last run, unset if there was none.
    platform::Date lastRun;
};

/// The day of the run that is due on `today`: one interval after the last run, which may be long
/// past. An event that never ran is due at once, dated today; but one for a day of the month on
/// that day only. Nothing when no run is due. An Error for a schedule that can never run: a period
/// below 1, an unknown interval.
std::optional<platform::Date> DueRun(const EventSchedule& schedule, platform::Date today);

/// The last run that a new event for a day of the month starts from: that day in this month while
/// it is still to come, else in the month before. A day that the month doesn't have is its last
/// one.
platform::Date SeedOfDayOfMonth(std::int16_t day, platform::Date today);

} // namespace books
