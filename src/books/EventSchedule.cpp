#include "books/EventSchedule.h"

#include <algorithm>
#include <chrono>

#include <fmt/core.h>

#include "platform/values/Errors.h"

namespace books {

using platform::Date;
using platform::DateAdd;
using platform::Interval;

namespace {

Date DayInMonthOf(Date date, int day) {
    const std::chrono::year_month_day_last last(
        date.Calendar().year(), std::chrono::month_day_last(date.Calendar().month()));
    const auto lastDay = static_cast<unsigned>(last.day());
    return {date.Year(), date.Month(), std::min(static_cast<unsigned>(day), lastDay)};
}

void CheckThatItCanRun(const EventSchedule& schedule) {
    const auto type = static_cast<int>(schedule.interval);
    if (type < static_cast<int>(IntervalType::Day) || type > static_cast<int>(IntervalType::Year)) {
        throw platform::Error(fmt::format("It never runs: there is no interval type {}", type));
    }
    if (schedule.period < 1) {
        throw platform::Error(
            fmt::format("It never runs: its interval period is {}", schedule.period));
    }
}

Date After(const EventSchedule& schedule) {
    switch (schedule.interval) {
        case IntervalType::Day:
            return DateAdd(Interval::Day, schedule.period, schedule.lastRun);
        case IntervalType::Week:
            return DateAdd(Interval::Week, schedule.period, schedule.lastRun);
        case IntervalType::Month:
            return DateAdd(Interval::Month, schedule.period, schedule.lastRun);
        case IntervalType::Year:
            return DateAdd(Interval::Year, schedule.period, schedule.lastRun);
        case IntervalType::DayOfMonth:
            break;
    }
    return DateAdd(Interval::Month, 1, schedule.lastRun);
}

Date FirstRun(const EventSchedule& schedule, Date today) {
    if (schedule.interval != IntervalType::DayOfMonth) return today;
    const Date thisMonth = DayInMonthOf(today, schedule.period);
    if (today <= thisMonth) return thisMonth;
    return DayInMonthOf(DateAdd(Interval::Month, 1, today), schedule.period);
}

} // namespace

std::optional<Date> DueRun(const EventSchedule& schedule, Date today) {
    CheckThatItCanRun(schedule);
    const Date next = schedule.lastRun.IsSet() ? After(schedule) : FirstRun(schedule, today);
    if (today < next) return std::nullopt;
    return next;
}

std::optional<Date> SeedWhileWaiting(const EventSchedule& schedule, Date today) {
    CheckThatItCanRun(schedule);
    if (schedule.lastRun.IsSet() || schedule.interval != IntervalType::DayOfMonth) return {};
    const Date awaited = FirstRun(schedule, today);
    if (awaited <= today) return {};
    return DateAdd(Interval::Month, -1, awaited);
}

Date SeedOf(const EventSchedule& schedule, Date today) {
    if (schedule.interval != IntervalType::DayOfMonth) return {};
    return SeedOfDayOfMonth(schedule.period, today);
}

Date SeedOfDayOfMonth(std::int16_t day, Date today) {
    if (day > static_cast<int>(today.Day())) return DayInMonthOf(today, day);
    return DayInMonthOf(DateAdd(Interval::Month, -1, today), day);
}

} // namespace books
