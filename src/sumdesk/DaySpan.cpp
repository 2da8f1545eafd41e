#include "sumdesk/DaySpan.h"

#include <cstdlib>
#include <utility>

#include <fmt/core.h>

#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"
#include "sumdesk/Counts.h"
#include "sumdesk/Sum.h"

namespace sumdesk {

using platform::Date;
using platform::Interval;

namespace {

constexpr int kDaysOfWeek = 7;

std::string Both(std::string first, int rest) {
    return rest == 0 ? first : first + " and " + Counted(rest, "day");
}

} // namespace

Date ReadDay(std::string_view text, std::string_view name) {
    const auto day = Date::TryParse(text);
    if (day) return *day;
    if (platform::Trim(text).empty()) {
        throw platform::ConversionError(fmt::format("Enter the {}.", name));
    }
    throw platform::ConversionError(
        fmt::format("\"{}\" is not a valid date. Enter it as month/day/year.", text));
}

DaySpan SpanBetween(Date from, Date to, LastDay lastDay) {
    DaySpan span;
    span.isBackwards = to < from;
    if (span.isBackwards) std::swap(from, to);
    if (lastDay == LastDay::Counted) to = DateAdd(Interval::Day, 1, to);
    span.days = DateDiff(Interval::Day, from, to);
    span.weeks = span.days / kDaysOfWeek;
    span.daysAfterWeeks = span.days % kDaysOfWeek;
    span.months = DateDiff(Interval::Month, from, to);
    if (DateAdd(Interval::Month, span.months, from) > to) --span.months;
    span.daysAfterMonths = DateDiff(Interval::Day, DateAdd(Interval::Month, span.months, from), to);
    return span;
}

Date DayAfter(Date from, std::string_view days) {
    constexpr int kMost = 4'000'000; // the whole calendar has fewer days
    Exact number;
    try {
        number = WorkOut(days).number;
    } catch (const SumError& fault) {
        throw platform::ConversionError(platform::Trim(days).empty() ? "Enter the number of days."
                                                                     : fault.what());
    }
    if (number.get_den() != 1) {
        throw platform::ConversionError("Enter a whole number of days.");
    }
    if (abs(number) > kMost) throw platform::OverflowError("The calendar doesn't go that far.");
    try {
        return DateAdd(Interval::Day, static_cast<int>(number.get_num().get_si()), from);
    } catch (const platform::OverflowError&) {
        throw platform::OverflowError("The calendar doesn't go that far.");
    }
}

std::string Describe(Date from, Date to, LastDay lastDay) {
    const DaySpan span = SpanBetween(from, to, lastDay);
    const bool isInclusive = lastDay == LastDay::Counted;
    std::string text = fmt::format("{} to {}{}: {}", from.ToText(), to.ToText(),
                                   isInclusive ? " inclusive" : "", Counted(span.days, "day"));
    if (span.weeks > 0) text += "\n" + Both(Counted(span.weeks, "week"), span.daysAfterWeeks);
    if (span.months > 0) text += "\n" + Both(Counted(span.months, "month"), span.daysAfterMonths);
    if (span.isBackwards) text += "\nThe second date is the earlier one.";
    return text;
}

std::string DescribeDayAfter(Date from, std::string_view days) {
    const Date day = DayAfter(from, days);
    const int count = DateDiff(Interval::Day, from, day);
    return fmt::format("{} {} {}: {}", Counted(std::abs(count), "day"),
                       count < 0 ? "before" : "after", from.ToText(),
                       platform::FormatDate(day, "dddd, mm/dd/yyyy"));
}

} // namespace sumdesk
