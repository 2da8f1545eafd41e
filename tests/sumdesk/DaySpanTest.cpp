#include "sumdesk/DaySpan.h"

#include <gtest/gtest.h>

#include "platform/values/Errors.h"

namespace tests {

namespace {

using platform::Date;
using sumdesk::Describe;
using sumdesk::DescribeDayAfter;
using sumdesk::LastDay;
using sumdesk::ReadDay;

TEST(DaySpan, CountsDaysWeeksAndMonths) {
    struct Case {
        Date from;
        Date to;
        LastDay lastDay;
        const char* text;
    };
    const auto no = LastDay::NotCounted;
    const auto yes = LastDay::Counted;
    const Case cases[] = {
        {{2024, 3, 5}, {2024, 3, 5}, no, "03/05/2024 to 03/05/2024: 0 days"},
        {{2024, 3, 5}, {2024, 3, 5}, yes, "03/05/2024 to 03/05/2024 inclusive: 1 day"},
        {{2024, 2, 1},
         {2024, 2, 29},
         yes,
         "02/01/2024 to 02/29/2024 inclusive: 29 days\n4 weeks and 1 day\n1 month"},
        {{2024, 2, 1}, {2024, 2, 29}, no, "02/01/2024 to 02/29/2024: 28 days\n4 weeks"},
        {{2024, 1, 31},
         {2024, 2, 29},
         no,
         "01/31/2024 to 02/29/2024: 29 days\n4 weeks and 1 day\n1 month"},
        {{2023, 1, 31}, {2023, 2, 27}, no, "01/31/2023 to 02/27/2023: 27 days\n3 weeks and 6 days"},
        {{2023, 6, 15},
         {2024, 6, 14},
         no,
         "06/15/2023 to 06/14/2024: 365 days\n52 weeks and 1 day\n11 months and 30 days"},
        {{2024, 3, 6},
         {2024, 3, 1},
         no,
         "03/06/2024 to 03/01/2024: 5 days\nThe second date is the earlier one."},
        {{1999, 12, 31},
         {2024, 1, 1},
         no,
         "12/31/1999 to 01/01/2024: 8,767 days\n1,252 weeks and 3 days\n288 months and 1 day"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(Describe(one.from, one.to, one.lastDay), one.text);
    EXPECT_THROW(Describe(Date(2024, 1, 1), Date(9999, 12, 31), yes), platform::OverflowError);
}

TEST(DaySpan, FindsTheDateAfterSomeDays) {
    const Date start(2024, 2, 28);
    EXPECT_EQ(DescribeDayAfter(start, "1"), "1 day after 02/28/2024: Thursday, 02/29/2024");
    EXPECT_EQ(DescribeDayAfter(start, "30*2"), "60 days after 02/28/2024: Sunday, 04/28/2024");
    EXPECT_EQ(DescribeDayAfter(start, "-60"), "60 days before 02/28/2024: Saturday, 12/30/2023");
    EXPECT_EQ(DescribeDayAfter(start, "0"), "0 days after 02/28/2024: Wednesday, 02/28/2024");
}

TEST(DaySpan, RefusesWhatIsNoDateOrNoNumberOfDays) {
    const auto why = [](const auto& work) -> std::string {
        try {
            work();
        } catch (const platform::Error& fault) {
            return fault.what();
        }
        return "nothing";
    };
    const Date start(2024, 2, 28);
    const auto read = [&](const char* text) { return why([&] { ReadDay(text, "first date"); }); };
    EXPECT_EQ(read(" "), "Enter the first date.");
    EXPECT_EQ(read("02/30/2024"),
              "\"02/30/2024\" is not a valid date. Enter it as month/day/year.");
    EXPECT_EQ(read("2/29/2024"), "nothing");
    const auto after = [&](const char* days) {
        return why([&] { DescribeDayAfter(start, days); });
    };
    EXPECT_EQ(after(""), "Enter the number of days.");
    EXPECT_EQ(after("1.5"), "Enter a whole number of days.");
    EXPECT_EQ(after("a"), "\"a\" can't be used in a sum.");
    EXPECT_EQ(after("3000000"), "The calendar doesn't go that far.");
    EXPECT_EQ(after("-900000000000"), "The calendar doesn't go that far.");
}

} // namespace

} // namespace tests
