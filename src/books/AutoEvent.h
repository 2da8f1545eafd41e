#pragma once

#include <cstdint>
#include <string>

#include "core/Codes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace books {

/// An event is started by the calendar or by a posted transaction. Stored.
enum class EventType : std::int16_t { Scheduled = 1, Triggered = 2 };

/// The action of an event, besides its alert. Stored.
enum class EventAction : std::int16_t { None = 0, ProcessTransaction = 1 };

using core::IntervalType;

/// Whether an event that runs posts its transaction: one that the user took back on purpose isn't
/// posted again.
enum class EventPosts { No, Yes };

/// Runs one event, dated `date` (unset: today): posts its transaction, which triggers no events,
/// raises its alert, and stores the date as its last run. One unit of work. Returns the id of the
/// transaction, 0 if it posted none. Throws on failure. Does nothing if there is no such event.
std::int32_t RunAutoEvent(std::int32_t idAutoEvent, platform::Date date,
                          EventPosts posts = EventPosts::Yes);

} // namespace books
