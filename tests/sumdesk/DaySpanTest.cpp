#include "sumdesk/DaySpan.h"

#include <gtest/gtest.h>

#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace tests {

namespace {

using platform::Date;
using sumdesk::Describe;
using sumdesk::DescribeDayAfter;
using sumdesk::LastDay;
using sumdesk::ReadDay;
using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/days.cases";

TEST(DaySpan, CountsDaysWeeksAndMonths) {
    ForEachCase(kCases, "spans", [](const Case& each) {
        const auto lastDay =
            each["counts the last day"] == "yes" ? LastDay::Counted : LastDay::NotCounted;
        EXPECT_EQ(Describe(Date::Parse(each["from"]), Date::Parse(each["to"]), lastDay),
                  each["text"]);
    });
    EXPECT_THROW(Describe(Date(2024, 1, 1), Date(9999, 12, 31), LastDay::Counted),
                 platform::OverflowError);
}

TEST(DaySpan, FindsTheDateAfterSomeDays) {
    ForEachCase(kCases, "days after 02/28/2024", [](const Case& each) {
        EXPECT_EQ(DescribeDayAfter(Date(2024, 2, 28), each["days"]), each["text"]);
    });
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
    const auto read = [&](const char* text) { return why([&] { ReadDay(text, "first date"); }); };
    EXPECT_EQ(read(" "), "Enter the first date.");
    EXPECT_EQ(read("02/30/2024"),
              "\"02/30/2024\" is not a valid date. Enter it as month/day/year.");
    EXPECT_EQ(read("2/29/2024"), "nothing");
    ForEachCase(kCases, "no number of days", [&](const Case& each) {
        EXPECT_EQ(why([&] { DescribeDayAfter(Date(2024, 2, 28), each["days"]); }), each["why"]);
    });
}

} // namespace

} // namespace tests
