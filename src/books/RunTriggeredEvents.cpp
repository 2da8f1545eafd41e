#include "books/RunTriggeredEvents.h"

#include <exception>
#include <vector>

#include <fmt/core.h>

#include "books/AutoEvent.h"
#include "core/RecordHelpers.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace books {

using platform::EqualIgnoringCase;
using platform::Recordset;
using platform::Trim;

namespace {

struct Waiting {
    std::int32_t id = 0;
    std::string description;
};

/// Returns the events completely before any of them runs, since a run writes to the table.
std::vector<Waiting> EventsOf(const Party& party, std::string_view taxCategory) {
    Recordset rows = core::Read(
        "SELECT IdAutoEvent, Description, TriggerTaxCategory FROM AutoEvent "
        "WHERE EventType = 2 AND Enabled = True AND TriggerType = ? AND TriggerID = ?",
        {party.type, party.id});
    std::vector<Waiting> events;
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::string wanted = TextOf(rows["TriggerTaxCategory"]);
        if (!EqualIgnoringCase(Trim(wanted), taxCategory)) continue;
        events.push_back({rows["IdAutoEvent"].AsLong(), TextOf(rows["Description"])});
    }
    return events;
}

} // namespace

void RunTriggeredEvents(const Party& party, std::string_view taxCategory) {
    for (const Waiting& event : EventsOf(party, Trim(taxCategory))) {
        try {
            RunAutoEvent(event.id, platform::Date());
        } catch (const platform::Error& error) {
            core::AddAlert(
                fmt::format("Auto Event Failed: {}: {}", event.description, error.what()));
        }
    }
}

void RunTriggeredEvents(const Transaction& transaction) {
    RunTriggeredEvents(transaction.debit, transaction.taxCategory);
    RunTriggeredEvents(transaction.credit, transaction.taxCategory);
}

} // namespace books
