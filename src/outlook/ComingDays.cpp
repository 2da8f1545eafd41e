#include "outlook/ComingDays.h"

#include <array>
#include <utility>
#include <vector>

#include <fmt/core.h>

#include "books/AutoEvent.h"
#include "books/EventSchedule.h"
#include "core/Codes.h"
#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/LeaseStatus.h"
#include "platform/database/FieldReadings.h"
#include "platform/values/Text.h"

namespace outlook {

using platform::Date;
using platform::DateAdd;
using platform::Interval;
using platform::Recordset;

namespace {

ForecastRow DayOf(core::RecordKind kind, std::int32_t id, Date date, std::string what) {
    return {.date = date,
            .origin = Origin::Day,
            .recordKind = kind,
            .recordId = id,
            .name = core::NameOfRecord(kind, id),
            .what = std::move(what),
            .amount = {}};
}

// Leases

/// Returns what happened to a lease on a day; empty if it isn't worth showing.
std::string MeaningOf(const std::string& before, const leases::LeaseTerms& terms, bool renewed) {
    // A term without a length renews every day, which isn't worth showing.
    if (renewed) return terms.term.Get() > 0 ? "Lease renews" : "";
    if (leases::IsOver(terms.status)) return "Lease ends";
    if (before == core::kLeasePending) return "Lease begins";
    if (terms.status == core::kLeaseMonthToMonth) return "Lease continues month to month";
    if (terms.status == core::kLeaseWeekToWeek) return "Lease continues week to week";
    return "Lease becomes " + terms.status;
}

/// Returns the day of a change: the walk finds the end of a term on the day after it, but a
/// beginning on its own day.
Date DayOfChange(const std::string& before, const leases::LeaseTerms& terms, Date found) {
    const bool begins = before == core::kLeasePending && !leases::IsOver(terms.status);
    return begins ? found : DateAdd(Interval::Day, -1, found);
}

/// Returns the day after which the run will walk the lease.
Date StartOf(const leases::LeaseTerms& terms) {
    const Date updated = terms.dateUpdated.Get();
    return updated.IsSet() ? updated : DateAdd(Interval::Month, -1, terms.dateActive.Get());
}

std::vector<ForecastRow> DaysOfLease(std::int32_t id, leases::LeaseTerms terms, Date until) {
    std::vector<ForecastRow> days;
    for (int serial = StartOf(terms).Serial() + 1; serial <= until.Serial(); ++serial) {
        if (leases::IsOver(terms.status)) break;
        const Date day = Date::FromSerial(serial);
        const std::string before = terms.status;
        const leases::StatusStep step = leases::StepLeaseStatus(terms, day, false);
        if (!step.Changed()) continue;
        const std::string meaning = MeaningOf(before, terms, step.renewed);
        if (meaning.empty()) continue;
        days.push_back(DayOf(core::kLease, id, DayOfChange(before, terms, day), meaning));
    }
    return days;
}

// Events

void AddDaysOfEvent(Forecast& forecast, Recordset& event) {
    books::EventSchedule schedule{books::IntervalType{ShortOf(event["IntervalType"])},
                                  ShortOf(event["IntervalPeriod"]), DateOf(event["LastRun"])};
    const std::int32_t id = event["IdAutoEvent"].AsLong();
    const std::string description(platform::Trim(TextOf(event["Description"])));
    // As the run would do on each of these days.
    for (const Date today : {forecast.today, forecast.until}) {
        while (const auto due = books::DueRun(schedule, today)) {
            ForecastRow row = DayOf(core::kAutoEvent, id, *due, "Reminder");
            if (!description.empty()) row.name = description;
            forecast.rows.push_back(std::move(row));
            schedule.lastRun = *due;
        }
        if (const auto seed = books::SeedWhileWaiting(schedule, today)) schedule.lastRun = *seed;
    }
}

// Dates of buildings and mortgages

/// A date that a table holds, and the text for what is due `yearsLater` years after it.
struct StoredDay {
    core::RecordKind kind;
    std::string_view table;
    std::string_view key;
    std::string_view field;
    int yearsLater;
    std::string_view what;
};

constexpr std::array<StoredDay, 3> kStoredDays = {{
    {core::kBuilding, "Building", "IdBuilding", "InsNextDue", 0, "Insurance renewal due"},
    {core::kBuilding, "Building", "IdBuilding", "HOANextDue", 0, "Association payment due"},
    {core::kMortgage, "Mortgage", "IdMortgage", "LastEscrowReview", 1,
     "Escrow review of taxes and insurance due"},
}};

void AddStoredDay(Forecast& forecast, const StoredDay& stored, Recordset& row) {
    const std::int32_t id = row[stored.key].AsLong();
    try {
        const Date day = DateAdd(Interval::Year, stored.yearsLater, row[stored.field].AsDate());
        if (day < forecast.today || day > forecast.until) return;
        forecast.rows.push_back(DayOf(stored.kind, id, day, std::string(stored.what)));
    } catch (const platform::Error& failure) {
        forecast.faults.push_back(fmt::format("{} {}: {}", core::RecordKindName(stored.kind),
                                              core::NameOfRecord(stored.kind, id), failure.what()));
    }
}

} // namespace

void AddLeaseDays(Forecast& forecast) {
    for (Recordset row = core::Read("SELECT * FROM Lease"); !row.Eof(); row.MoveNext()) {
        try {
            const std::vector<ForecastRow> days =
                DaysOfLease(row["IdLease"].AsLong(), leases::LeaseTerms::Read(row), forecast.until);
            forecast.rows.insert(forecast.rows.end(), days.begin(), days.end());
        } catch (const platform::Error&) {
            continue; // the run can't walk it either, and says why
        }
    }
}

void AddReminders(Forecast& forecast) {
    Recordset events = core::Read(
        "SELECT * FROM AutoEvent WHERE EventType = 1 AND Enabled = True AND Alert = True");
    for (; !events.Eof(); events.MoveNext()) {
        try {
            const books::EventAction action{ShortOf(events["EventAction"])};
            if (action == books::EventAction::ProcessTransaction) continue;
            AddDaysOfEvent(forecast, events);
        } catch (const platform::Error&) {
            continue; // it can't run, which the run reports
        }
    }
}

void AddRenewals(Forecast& forecast) {
    for (const StoredDay& stored : kStoredDays) {
        Recordset rows = core::Read(fmt::format("SELECT {0}, {1} FROM {2} WHERE {1} <> ''",
                                                stored.key, stored.field, stored.table));
        for (; !rows.Eof(); rows.MoveNext())
            AddStoredDay(forecast, stored, rows);
    }
}

void AddComingDays(Forecast& forecast) {
    AddLeaseDays(forecast);
    AddReminders(forecast);
    AddRenewals(forecast);
}

} // namespace outlook
