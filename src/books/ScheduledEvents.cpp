#include "books/ScheduledEvents.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "books/AutoEvent.h"
#include "books/EventSchedule.h"
#include "books/TellLists.h"
#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/TakenBack.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"

namespace books {

using platform::Date;
using platform::Recordset;
using platform::UnitOfWork;

namespace {

/// The result of one event in a pass; reported once the pass is committed.
struct EventOutcome {
    std::int32_t id = 0;
    std::string description;
    std::string fault;
    std::optional<core::PostedRow> posted;
    std::string category;
};

EventSchedule ScheduleOf(Recordset& event) {
    return {IntervalType{ShortOf(event["IntervalType"])}, ShortOf(event["IntervalPeriod"]),
            DateOf(event["LastRun"])};
}

core::RunReason ReasonOf(const EventSchedule& schedule, Date due) {
    const bool neverRan =
        !schedule.lastRun.IsSet() && schedule.interval != IntervalType::DayOfMonth;
    return {.posting = core::Posting::EventTransaction,
            .due = due,
            .number = schedule.period,
            .every = neverRan ? std::nullopt : std::optional(schedule.interval)};
}

std::string DescriptionOf(Recordset& event) {
    const std::string description(platform::Trim(TextOf(event["Description"])));
    return description.empty() ? "event " + std::to_string(event["IdAutoEvent"].AsLong())
                               : description;
}

/// Stores the day that a never-run event waits for; returns true if it was stored.
bool KeepAwaitedDay(Recordset& event) {
    const std::optional<Date> seed = SeedWhileWaiting(ScheduleOf(event), platform::Today());
    if (!seed) return false;
    core::Execute("UPDATE AutoEvent SET LastRun = ? WHERE IdAutoEvent = ?",
                  {seed->ToText(), event["IdAutoEvent"].AsLong()});
    return true;
}

/// Returns nothing if the event isn't due.
std::optional<EventOutcome> RunIfDue(Recordset& event) {
    const std::optional<Date> due = DueRun(ScheduleOf(event), platform::Today());
    if (!due) return std::nullopt;
    EventOutcome outcome;
    outcome.id = event["IdAutoEvent"].AsLong();
    outcome.description = DescriptionOf(event);
    outcome.category = TextOf(event["TaxCategory"]);
    const bool isTakenBack =
        core::TakenBack(core::kAutoEvent, outcome.id).Has(core::Posting::EventTransaction, *due);
    const std::int32_t idTransaction =
        RunAutoEvent(outcome.id, *due, isTakenBack ? EventPosts::No : EventPosts::Yes);
    if (idTransaction != 0) {
        outcome.posted = {
            *due, {}, MoneyOf(event["Amount"]), ReasonOf(ScheduleOf(event), *due), idTransaction};
    }
    return outcome;
}

void Tell(core::RunListener& listener, const std::vector<EventOutcome>& outcomes) {
    for (const EventOutcome& outcome : outcomes) {
        if (!outcome.fault.empty()) {
            listener.Failed(core::kAutoEvent, outcome.id, outcome.description, outcome.fault);
        }
        if (!outcome.posted) continue;
        core::PostedRow row = *outcome.posted;
        row.category = outcome.category;
        listener.Posted(core::kAutoEvent, outcome.id, outcome.description, {row});
    }
}

} // namespace

bool ScheduledEvents::RunScheduledEvents() {
    // The rows are read inside the unit of work: another program may have run them just before.
    UnitOfWork pass(core::App().Connection);
    Recordset events = core::Read("SELECT * FROM AutoEvent WHERE EventType = 1 AND Enabled = True");
    std::vector<EventOutcome> outcomes;
    bool ran = false;
    bool kept = false;
    for (; !events.Eof(); events.MoveNext()) {
        const std::int32_t id = IdOf(events["IdAutoEvent"]);
        if (passedOver_.contains(id)) continue;
        try {
            if (auto outcome = RunIfDue(events)) {
                ran = true;
                outcomes.push_back(std::move(*outcome));
            } else if (KeepAwaitedDay(events)) {
                kept = true;
            }
        } catch (const platform::Error& error) {
            passedOver_.insert(id);
            EventOutcome& outcome = outcomes.emplace_back();
            outcome.id = id;
            outcome.description = DescriptionOf(events);
            outcome.fault = error.what();
        }
    }
    if (kept) TellLists({core::kAutoEvent});
    pass.Commit();
    Tell(listener_, outcomes);
    return ran;
}

void RunDueEvents(core::RunListener& listener) {
    ScheduledEvents events(listener);
    while (events.RunScheduledEvents())
        core::LetMessagesRun();
}

} // namespace books
