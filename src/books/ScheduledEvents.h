#pragma once

#include <cstdint>
#include <set>

#include "core/DailyRun.h"

namespace books {

/// One daily run of the scheduled events. An event that can't run is reported to the listener once,
/// and its books stay unchanged; the other events still run.
class ScheduledEvents {
  public:
    explicit ScheduledEvents(core::RunListener& listener) : listener_(listener) {}

    /// Makes one pass over the enabled scheduled events in the order of the table: each due event
    /// runs once, dated with the day it was due, so a pass catches up by one interval. Each event
    /// runs whole or not at all, and the pass is one unit of work. Returns true if at least one
    /// ran. A failure that isn't one event's own rolls the pass back and is thrown.
    bool RunScheduledEvents();

  private:
    core::RunListener& listener_;
    std::set<std::int32_t> passedOver_;
};

/// The step of the daily run that runs scheduled events: makes passes until no event is due, and
/// processes window messages between them.
void RunDueEvents(core::RunListener& listener);

} // namespace books
