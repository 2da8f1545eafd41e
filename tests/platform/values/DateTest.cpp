#include "platform/values/Date.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "platform/values/Errors.h"

namespace platform {
namespace {

TEST(Date, ReadsTheWaysADayIsWritten) {
    struct Case {
        const char* text;
        const char* day; // empty: not a valid date
    };
    const Case cases[] = {
        {"02/29/2024", "02/29/2024"},
        {"2/9/2024", "02/09/2024"},
        {"  12/31/9999 ", "12/31/9999"},
        {"1/1/100", "01/01/0100"},
        {"1/1/00", "01/01/2000"},
        {"1/1/5", "01/01/2005"},
        {"1/1/29", "01/01/2029"},
        {"1/1/30", "01/01/1930"},
        {"1/1/99", "01/01/1999"},
        {"7-4-2023", "07/04/2023"},
        {"2023-07-04", "07/04/2023"},
        {"2023/7/4", "07/04/2023"},
        {"02/29/2023", ""},
        {"02/29/1900", ""},
        {"02/29/2000", "02/29/2000"},
        {"04/31/2024", ""},
        {"13/01/2024", ""},
        {"0/1/2024", ""},
        {"1/0/2024", ""},
        {"1/32/2024", ""},
        {"1/1/0099", ""},
        {"1/1/20245", ""},
        {"1/288/2024", ""},
        {"257/1/2024", ""},
        {"1/1/2024x", ""},
        {"1/1-2024", ""},
        {"1/1", ""},
        {"1//2024", ""},
        {"/1/2024", ""},
        {"-1/1/2024", ""},
        {"01022024", ""},
        {"next week", ""},
        {"", ""},
        {"   ", ""},
    };
    for (const Case& c : cases) {
        const auto day = Date::TryParse(c.text);
        EXPECT_EQ(day ? day->ToText() : "", c.day) << c.text;
    }
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
    struct Case {
        Interval interval;
        int count;
        const char* from;
        const char* to;
    };
    const Case cases[] = {
        {Interval::Day, 1, "02/28/2024", "02/29/2024"},
        {Interval::Day, -60, "03/01/2023", "12/31/2022"},
        {Interval::Week, 2, "12/25/2023", "01/08/2024"},
        {Interval::Week, -1, "03/01/2024", "02/23/2024"},
        {Interval::Month, 1, "01/31/2024", "02/29/2024"},
        {Interval::Month, 1, "01/31/2023", "02/28/2023"},
        {Interval::Month, -1, "03/31/2024", "02/29/2024"},
        {Interval::Month, 11, "01/30/2023", "12/30/2023"},
        {Interval::Month, 12, "02/29/2024", "02/28/2025"},
        {Interval::Month, -13, "01/31/2024", "12/31/2022"},
        {Interval::Month, 0, "05/31/2024", "05/31/2024"},
        {Interval::Year, 1, "02/29/2024", "02/28/2025"},
        {Interval::Year, 4, "02/29/2024", "02/29/2028"},
        {Interval::Year, -124, "02/29/2024", "02/28/1900"},
        {Interval::Month, 1, "11/30/9999", "12/30/9999"},
        {Interval::Month, -1, "02/28/0100", "01/28/0100"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(DateAdd(c.interval, c.count, Date::Parse(c.from)).ToText(), c.to)
            << c.from << " " << c.count;
    }
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
    struct Case {
        Interval interval;
        const char* from;
        const char* to;
        int count;
    };
    const Case cases[] = {
        {Interval::Day, "02/28/2024", "03/01/2024", 2},
        {Interval::Day, "03/01/2024", "02/28/2024", -2},
        {Interval::Week, "01/01/2024", "01/07/2024", 0},
        {Interval::Week, "01/01/2024", "01/08/2024", 1},
        {Interval::Week, "01/08/2024", "01/02/2024", 0},
        {Interval::Week, "01/08/2024", "01/01/2024", -1},
        {Interval::Month, "01/31/2024", "02/01/2024", 1},
        {Interval::Month, "01/01/2024", "01/31/2024", 0},
        {Interval::Month, "02/01/2024", "12/31/2022", -14},
        {Interval::Year, "12/31/2023", "01/01/2024", 1},
        {Interval::Year, "01/01/2024", "12/31/2024", 0},
        {Interval::Year, "01/01/2024", "12/31/1999", -25},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(DateDiff(c.interval, Date::Parse(c.from), Date::Parse(c.to)), c.count)
            << c.from << " to " << c.to;
    }
}

} // namespace
} // namespace platform
