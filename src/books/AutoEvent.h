#pragma once

#include <cstdint>
#include <string>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace books {

/// What starts an event: the calendar, or a posted transaction. Stored.
enum class EventType : std::int16_t { Scheduled = 1, Triggered = 2 };

/// What an event does besides raising its alert. Stored.
enum class EventAction : std::int16_t { None = 0, ProcessTransaction = 1 };

/// What an interval is counted in. Stored.
enum class IntervalType : std::int16_t { Day = 1, Week = 2, Month = 3, DayOfMonth = 4, Year = 5 };

/// Performs one event, dated `date` (unset: today): posts its transaction, which triggers nothing,
/// raises its alert, and remembers the date as its last run. One unit of work; failures are thrown.
/// Nothing for an event that isn't there.
void RunAutoEvent(std::int32_t idAutoEvent, platform::Date date);

} // namespace books
