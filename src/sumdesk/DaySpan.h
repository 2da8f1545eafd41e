#pragma once

#include <string>
#include <string_view>

#include "platform/values/Date.h"

namespace sumdesk {

enum class LastDay {
    NotCounted, ///< from one day to the other: 1/1 to 1/31 are 30 days
    Counted,    ///< both days count, as for rent from the 1st to the 31st
};

/// The time between two days in three measures.
struct DaySpan {
    int days = 0;
    int weeks = 0;
    int daysAfterWeeks = 0;
    int months = 0; ///< whole calendar months
    int daysAfterMonths = 0;
    bool isBackwards = false; ///< the second day is the earlier one
};

/// Returns the day that was typed. Throws ConversionError with a text for the user if it isn't a
/// valid date, or blank.
platform::Date ReadDay(std::string_view text, std::string_view name);

/// Returns the span between two days. Throws OverflowError if it leaves the calendar.
DaySpan SpanBetween(platform::Date from, platform::Date to, LastDay lastDay);

/// Returns the day that is a number of days after another; the number may be a sum, and negative.
/// Throws ConversionError if it isn't a whole number, OverflowError if the day leaves the calendar.
platform::Date DayAfter(platform::Date from, std::string_view days);

/// Returns the span with its two days, a line for each measure, the last without a line feed.
std::string Describe(platform::Date from, platform::Date to, LastDay lastDay);
/// Returns DayAfter with the start and its weekday: "90 days after 01/01/2024: Sunday, 03/31/2024".
std::string DescribeDayAfter(platform::Date from, std::string_view days);

} // namespace sumdesk
