#include "leases/DueMove.h"

#include <gtest/gtest.h>

namespace tests {

namespace {

using platform::Date;

TEST(DueBefore, FindsTheDueDateAgainAcrossShortMonths) {
    struct Case {
        const char* termType;
        Date oldest;
        int periods;
        Date due;
        Date before;
    };
    for (const Case& c : {
             Case{"Month(s)", {2024, 1, 31}, 1, {2024, 2, 29}, {2024, 1, 31}},
             Case{"Month(s)", {2024, 1, 31}, 2, {2024, 3, 29}, {2024, 1, 31}},
             Case{"Month(s)", {2023, 12, 31}, 1, {2024, 1, 31}, {2023, 12, 31}},
             Case{"Month(s)", {2024, 1, 1}, 1, {2024, 3, 1}, {2024, 2, 1}}, // later rent was paid
             Case{"Month(s)", {}, 1, {2024, 3, 30}, {2024, 2, 29}},
             Case{"WTW", {2023, 12, 28}, 1, {2024, 1, 4}, {2023, 12, 28}},
             Case{"Year(s)", {2024, 2, 29}, 1, {2025, 2, 28}, {2024, 2, 29}},
             Case{"Month(s)", {2024, 1, 31}, 0, {2024, 2, 29}, {2024, 2, 29}},
         }) {
        EXPECT_EQ(leases::DueBefore(c.termType, c.due, c.periods, c.oldest), c.before)
            << c.due.ToText();
    }
}

} // namespace

} // namespace tests
