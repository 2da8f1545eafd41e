#include "platform/values/Date.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace platform {
namespace {

using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/dates.cases";

Interval IntervalOf(const Case& each) {
    const std::string& name = each["interval"];
    return name == "Day"     ? Interval::Day
           : name == "Week"  ? Interval::Week
           : name == "Month" ? Interval::Month
                             : Interval::Year;
}

TEST(Date, ReadsTheWaysADayIsWritten) {
    ForEachCase(kCases, "days as they are written", [](const Case& each) {
        const auto day = Date::TryParse(each["text"]);
        EXPECT_EQ(day ? day->ToText() : "", each["day"]);
    });
}

TEST(Date, ParseTakesABlankTextForUnsetAndJunkForAnError) {
    EXPECT_FALSE(Date::Parse(" ").IsSet());
    EXPECT_EQ(Date::Parse("3/1/2024"), Date(2024, 3, 1));
    EXPECT_THROW(Date::Parse("02/30/2024"), ConversionError);
    EXPECT_THROW(Date(2024, 2, 30), ConversionError);
    EXPECT_THROW(Date(-1, 2, 3), ConversionError);
}

TEST(Date, CountsSerialNumbersFromTheEndOf1899) {
    EXPECT_EQ(Date(1899, 12, 30).Serial(), 0);
    EXPECT_EQ(Date(1900, 1, 1).Serial(), 2);
    EXPECT_EQ(Date(2024, 2, 29).Serial(), 45'351);
    EXPECT_EQ(Date::FromSerial(Date(100, 1, 1).Serial()), Date(100, 1, 1));
    EXPECT_EQ(Date::FromSerial(Date(9999, 12, 31).Serial()), Date(9999, 12, 31));
    EXPECT_THROW(Date::FromSerial(Date(100, 1, 1).Serial() - 1), OverflowError);
    EXPECT_THROW(Date::FromSerial(Date(9999, 12, 31).Serial() + 1), OverflowError);
    EXPECT_EQ(Date(2024, 2, 29).Weekday(), 5U);
    EXPECT_EQ(Date(2024, 3, 3).Weekday(), 1U);
}

TEST(Date, EveryDayOfFourCenturiesReadsBackFromItsText) {
    for (int serial = Date(1800, 1, 1).Serial(); serial < Date(2200, 1, 1).Serial(); ++serial) {
        const Date day = Date::FromSerial(serial);
        ASSERT_EQ(Date::TryParse(day.ToText()), day);
        ASSERT_EQ(Date(day.Year(), day.Month(), day.Day()).Serial(), serial);
    }
}

TEST(Date, AnUnsetDateSortsFirstAndRefusesToBeRead) {
    const Date unset;
    EXPECT_LT(unset, Date(100, 1, 1));
    EXPECT_EQ(unset, Date());
    EXPECT_EQ(unset.ToText(), "");
    EXPECT_THROW(static_cast<void>(unset.Year()), ConversionError);
    EXPECT_THROW(static_cast<void>(unset.Serial()), ConversionError);
    EXPECT_THROW(DateAdd(Interval::Day, 1, unset), ConversionError);
    EXPECT_THROW(DateAdd(Interval::Month, 1, unset), ConversionError);
    EXPECT_THROW(DateDiff(Interval::Day, unset, Date(2024, 1, 1)), ConversionError);
    EXPECT_THROW(DateDiff(Interval::Year, Date(2024, 1, 1), unset), ConversionError);
}

TEST(Date, AddingMonthsAndYearsClampsToTheLastDayOfTheMonth) {
    ForEachCase(kCases, "steps", [](const Case& each) {
        const Date from = Date::Parse(each["from"]);
        EXPECT_EQ(DateAdd(IntervalOf(each), each.Number<int>("count"), from).ToText(), each["to"]);
    });
}

TEST(Date, LeavingTheCalendarIsAnOverflow) {
    const Date last(9999, 12, 31);
    const Date first(100, 1, 1);
    for (const auto interval : {Interval::Day, Interval::Week, Interval::Month, Interval::Year}) {
        EXPECT_THROW(DateAdd(interval, 1, last), OverflowError);
        EXPECT_THROW(DateAdd(interval, -1, first), OverflowError);
        EXPECT_THROW(DateAdd(interval, std::numeric_limits<int>::max(), first), OverflowError);
        EXPECT_THROW(DateAdd(interval, std::numeric_limits<int>::min(), last), OverflowError);
    }
}

TEST(Date, DifferencesCountDaysWholeWeeksAndCalendarChanges) {
    ForEachCase(kCases, "differences", [](const Case& each) {
        EXPECT_EQ(DateDiff(IntervalOf(each), Date::Parse(each["from"]), Date::Parse(each["to"])),
                  each.Number<int>("count"));
    });
}

} // namespace
} // namespace platform
