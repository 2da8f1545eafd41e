#include "books/EventSchedule.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace {

using platform::Date;
using support::Case;

const std::filesystem::path kCases =
    std::filesystem::path(VESTREL_TEST_DATA) / "EventSchedule.cases";

books::EventSchedule ScheduleOf(const Case& row, const std::string& lastRun) {
    return {books::IntervalType{row.Number<std::int16_t>("interval")},
            row.Number<std::int16_t>("period"), Date::Parse(lastRun)};
}

/// The day as text, "-" when nothing is due, "never" for a schedule that can't run.
std::string Due(const books::EventSchedule& schedule, Date today) {
    try {
        const auto due = books::DueRun(schedule, today);
        return due ? due->ToText() : "-";
    } catch (const platform::Error&) {
        return "never";
    }
}

TEST(EventSchedule, NamesTheDayOfTheRunThatIsDue) {
    support::ForEachCase(kCases, "due", [](const Case& row) {
        EXPECT_EQ(Due(ScheduleOf(row, row["last run"]), Date::Parse(row["today"])), row["due"]);
    });
}

TEST(EventSchedule, KeepsTheFirstDayThatItWaitsFor) {
    support::ForEachCase(kCases, "waiting", [](const Case& row) {
        const auto kept =
            books::SeedWhileWaiting(ScheduleOf(row, row["last run"]), Date::Parse(row["today"]));
        EXPECT_EQ(kept ? kept->ToText() : "-", row["seed"]);
        if (!kept) return;
        const books::EventSchedule waiting = ScheduleOf(row, kept->ToText());
        const Date day = Date::Parse(row["awaited"]);
        EXPECT_EQ(Due(waiting, DateAdd(platform::Interval::Day, -1, day)), "-");
        EXPECT_EQ(Due(waiting, Date(2029, 12, 31)), row["awaited"]);
    });
}

TEST(EventSchedule, ANewEventOfADayOfTheMonthStartsFromThisMonthOrTheLast) {
    support::ForEachCase(kCases, "new", [](const Case& row) {
        EXPECT_EQ(
            books::SeedOfDayOfMonth(row.Number<std::int16_t>("day"), Date::Parse(row["today"]))
                .ToText(),
            row["seed"]);
    });
}

} // namespace
