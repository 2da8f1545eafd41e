#pragma once

#include <cstdint>
#include <set>

#include "core/DailyRun.h"

namespace books {

/// One bring-up-to-date run of the scheduled events. A listener hears once of each event that can't
/// run, whose books are as before; the others go on.
class ScheduledEvents {
  public:
    explicit ScheduledEvents(core::RunListener& listener) : listener_(listener) {}

    /// One pass over the enabled scheduled events in the order of the table: each that is due runs
    /// once, dated with the day it was due, so that a pass catches up by one interval. Each event
    /// runs whole or not at all, and the pass is kept at once. True if at least one ran. A failure
    /// that isn't one event's is thrown, and the pass taken back.
    bool RunScheduledEvents();

  private:
    core::RunListener& listener_;
    std::set<std::int32_t> passedOver_;
};

/// The step of the daily run: passes until nothing is left, with window messages let through
/// between them.
void RunDueEvents(core::RunListener& listener);

} // namespace books
