#include "platform/system/Clock.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(Clock, AnswersTheDayThatWasSetUntilTheSystemsIsWanted) {
    const Date set(1999, 12, 31);
    SetToday(set);
    EXPECT_EQ(Today(), set);
    SetToday(Date(2000, 1, 1));
    EXPECT_EQ(Today(), Date(2000, 1, 1));
    SetToday(std::nullopt);
    EXPECT_GT(Today(), Date(2020, 1, 1));
}

TEST(Clock, TheSecondLiesWithinTheDay) {
    EXPECT_GE(SecondOfDay(), 0);
    EXPECT_LT(SecondOfDay(), 86'401);
}

} // namespace
} // namespace platform
