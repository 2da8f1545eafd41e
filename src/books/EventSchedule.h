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

/// Returns the day of the run that is due on `today`; nothing if no run is due. A run is due one
/// interval after the last one, even if that day is long past. An event that never ran is due now
/// and dated today; an event for a day of the month waits for that day. Throws Error if the
/// schedule can never run: a period below 1, an unknown interval.
std::optional<platform::Date> DueRun(const EventSchedule& schedule, platform::Date today);

/// For an event that never ran and waits for its day of the month: returns the date to store as its
/// last run, so that it keeps waiting for the same day however long the program isn't started.
/// Returns nothing for any other event.
std::optional<platform::Date> SeedWhileWaiting(const EventSchedule& schedule, platform::Date today);

/// Returns the date to store as the last run of a new event, or of one whose interval was changed;
/// unset if the event is to run at the next start.
platform::Date SeedOf(const EventSchedule& schedule, platform::Date today);

/// Returns the date to store as the last run of a new event for a day of the month: that day in
/// this month if it is still to come, otherwise in the month before. If the month doesn't have that
/// day, its last day is used.
platform::Date SeedOfDayOfMonth(std::int16_t day, platform::Date today);

} // namespace books
