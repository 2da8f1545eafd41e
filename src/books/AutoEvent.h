#pragma once

#include <cstdint>
#include <string>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace books {

/// An event is started by the calendar or by a posted transaction. Stored.
enum class EventType : std::int16_t { Scheduled = 1, Triggered = 2 };

/// The action of an event, besides its alert. Stored.
enum class EventAction : std::int16_t { None = 0, ProcessTransaction = 1 };

/// The unit of an interval. Stored.
enum class IntervalType : std::int16_t { Day = 1, Week = 2, Month = 3, DayOfMonth = 4, Year = 5 };

/// Runs one event, dated `date` (unset: today): posts its transaction, which triggers no events,
/// raises its alert, and stores the date as its last run. One unit of work. Returns the id of the
/// transaction, 0 if the event posts none. Throws on failure. Does nothing if there is no such
/// event.
std::int32_t RunAutoEvent(std::int32_t idAutoEvent, platform::Date date);

/// Stores the date as the event's last run without running it: the user has taken back what it
/// posted on that day.
void SkipAutoEvent(std::int32_t idAutoEvent, platform::Date date);

} // namespace books
