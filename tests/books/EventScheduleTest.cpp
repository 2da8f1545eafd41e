#include "books/EventSchedule.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/values/Errors.h"

namespace {

using books::IntervalType;
using platform::Date;

/// The day as text, "-" when nothing is due, "never" for a schedule that can't run.
std::string Due(int interval, int period, const char* lastRun, const char* today) {
    try {
        const auto due = books::DueRun({IntervalType{static_cast<std::int16_t>(interval)},
                                        static_cast<std::int16_t>(period), Date::Parse(lastRun)},
                                       Date::Parse(today));
        return due ? due->ToText() : "-";
    } catch (const platform::Error&) {
        return "never";
    }
}

TEST(EventSchedule, NamesTheDayOfTheRunThatIsDue) {
    struct Case {
        int interval;
        int period;
        const char* lastRun;
        const char* today;
        const char* due;
    };
    for (const auto& [interval, period, lastRun, today, due] : {
             Case{1, 1, "02/28/2024", "02/28/2024", "-"},
             {1, 1, "02/28/2024", "02/29/2024", "02/29/2024"},
             {1, 1, "02/28/2023", "03/05/2023", "03/01/2023"},
             {1, 10, "12/27/2023", "01/05/2024", "-"},
             {1, 10, "12/27/2023", "01/06/2024", "01/06/2024"},
             {2, 2, "05/01/2024", "05/14/2024", "-"},
             {2, 2, "05/01/2024", "05/15/2024", "05/15/2024"},
             {3, 1, "01/31/2024", "02/28/2024", "-"},
             {3, 1, "01/31/2024", "02/29/2024", "02/29/2024"},
             {3, 1, "02/29/2024", "04/30/2024", "03/29/2024"},
             {3, 3, "11/30/2023", "02/29/2024", "02/29/2024"},
             {5, 1, "02/29/2024", "02/27/2025", "-"},
             {5, 1, "02/29/2024", "02/28/2025", "02/28/2025"},
             {5, 2, "05/17/2022", "05/17/2024", "05/17/2024"},
             // A last run that is still to come waits too.
             {3, 1, "06/01/2024", "05/17/2024", "-"},
             // On a day of the month the period is no count.
             {4, 15, "04/15/2024", "05/14/2024", "-"},
             {4, 15, "04/15/2024", "07/01/2024", "05/15/2024"},
             {4, 31, "01/31/2024", "03/05/2024", "02/29/2024"},
             {4, 31, "02/29/2024", "05/17/2024", "03/29/2024"},
             // Never run: at once, or on its day.
             {1, 30, "", "05/17/2024", "05/17/2024"},
             {5, 4, "", "02/29/2024", "02/29/2024"},
             {4, 17, "", "05/17/2024", "05/17/2024"},
             {4, 18, "", "05/17/2024", "-"},
             {4, 16, "", "05/17/2024", "-"},
             {4, 31, "", "04/29/2024", "-"},
             {4, 31, "", "04/30/2024", "04/30/2024"},
             {4, 30, "", "02/29/2024", "02/29/2024"},
             {4, 30, "", "02/28/2023", "02/28/2023"},
             {4, 1, "", "12/31/2024", "-"},
             // Never, whether it ran before or not.
             {1, 0, "", "05/17/2024", "never"},
             {3, 0, "01/01/2024", "05/17/2024", "never"},
             {4, 0, "01/01/2024", "05/17/2024", "never"},
             {1, -3, "01/01/2024", "05/17/2024", "never"},
             {0, 1, "", "05/17/2024", "never"},
             {6, 1, "01/01/2024", "05/17/2024", "never"},
             {5, 32000, "01/01/2024", "05/17/2024", "never"},
         }) {
        EXPECT_EQ(Due(interval, period, lastRun, today), due)
            << interval << " x " << period << " from '" << lastRun << "' on " << today;
    }
}

TEST(EventSchedule, KeepsTheFirstDayThatItWaitsFor) {
    struct Case {
        int interval;
        int period;
        const char* lastRun;
        const char* today;
        const char* seed;
        const char* awaited;
    };
    for (const auto& [interval, period, lastRun, today, seed, awaited] : {
             Case{4, 18, "", "05/17/2024", "04/18/2024", "05/18/2024"},
             {4, 16, "", "05/17/2024", "05/16/2024", "06/16/2024"},
             {4, 31, "", "04/29/2024", "03/30/2024", "04/30/2024"},
             {4, 30, "", "02/28/2024", "01/29/2024", "02/29/2024"},
             {4, 1, "", "12/31/2024", "12/01/2024", "01/01/2025"},
             // On its day it runs; an event that ran, or counts intervals, keeps no day.
             {4, 17, "", "05/17/2024", "-", ""},
             {4, 18, "04/18/2024", "05/17/2024", "-", ""},
             {3, 1, "", "05/17/2024", "-", ""},
         }) {
        const books::EventSchedule schedule{IntervalType{static_cast<std::int16_t>(interval)},
                                            static_cast<std::int16_t>(period),
                                            Date::Parse(lastRun)};
        const auto kept = books::SeedWhileWaiting(schedule, Date::Parse(today));
        EXPECT_EQ(kept ? kept->ToText() : "-", seed) << period << " on " << today;
        if (!kept) continue;
        const Date day = Date::Parse(awaited);
        const std::string from = kept->ToText();
        const std::string before = DateAdd(platform::Interval::Day, -1, day).ToText();
        EXPECT_EQ(Due(interval, period, from.c_str(), before.c_str()), "-");
        EXPECT_EQ(Due(interval, period, from.c_str(), "12/31/2029"), awaited);
    }
}

TEST(EventSchedule, ANewEventOfADayOfTheMonthStartsFromThisMonthOrTheLast) {
    struct Case {
        int day;
        const char* today;
        const char* seed;
    };
    for (const auto& [day, today, seed] : {
             Case{18, "05/17/2024", "05/18/2024"},
             {17, "05/17/2024", "04/17/2024"},
             {1, "01/15/2024", "12/01/2023"},
             {31, "04/29/2024", "04/30/2024"},
             {31, "03/31/2024", "02/29/2024"},
             {30, "03/30/2023", "02/28/2023"},
             {29, "02/28/2023", "02/28/2023"},
         }) {
        EXPECT_EQ(
            books::SeedOfDayOfMonth(static_cast<std::int16_t>(day), Date::Parse(today)).ToText(),
            seed)
            << day << " on " << today;
    }
}

} // namespace
