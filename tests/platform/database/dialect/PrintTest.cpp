#include <gtest/gtest.h>

#include "platform/database/dialect/Syntax.h"
#include "support/Cases.h"

namespace platform::dialect {
namespace {

TEST(Print, ShowsTheTreeOfAStatement) {
    support::ForEachCase(VESTREL_TEST_DATA "/print.cases", "statements",
                         [](const support::Case& each) {
                             EXPECT_EQ(Print(Parse(each["statement"])), each["printed"]);
                             EXPECT_EQ(Print(Parse(each["printed"])), each["printed"]);
                         });
}

} // namespace
} // namespace platform::dialect
