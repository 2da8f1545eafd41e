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
    /// The date of the last run, unset if there was none.
    platform::Date lastRun;
};

/// Returns the day of the run that is due on `today`, nothing if none is: one interval after the
/// last run, which may be long past. An event that never ran is due now, dated today; one for a day
/// of the month waits for that day. Throws Error if the schedule can never run: a period below 1,
/// an unknown interval.
std::optional<platform::Date> DueRun(const EventSchedule& schedule, platform::Date today);

/// Returns the last run to store for an event that never ran and waits for its day of the month,
/// so that the first day it waits for is kept however long the program isn't started; nothing for
/// any other event.
std::optional<platform::Date> SeedWhileWaiting(const EventSchedule& schedule, platform::Date today);

/// Returns the last run that a new event, or one whose interval was changed, starts from: unset if
/// it runs at the next start.
platform::Date SeedOf(const EventSchedule& schedule, platform::Date today);

/// Returns the last run that a new event for a day of the month starts from: that day of this
/// month if it is still to come, otherwise of the month before. A day that the month doesn't have
/// is its last one.
platform::Date SeedOfDayOfMonth(std::int16_t day, platform::Date today);

} // namespace books
