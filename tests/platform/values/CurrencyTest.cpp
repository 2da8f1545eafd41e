#include "platform/values/Currency.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace platform {
namespace {

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

TEST(Currency, RoundsADoubleToTheNearestAmountAndHalvesToEven) {
    support::ForEachCase(VESTREL_TEST_DATA "/currency.cases", "doubles",
                         [](const support::Case& each) {
                             EXPECT_EQ(Currency::FromDouble(each.Number<double>("units")).Scaled(),
                                       each.Number<std::int64_t>("scaled"));
                         });
}

TEST(Currency, RefusesADoubleThatNoAmountHolds) {
    for (const double units :
         {922'337'203'685'477.625, -922'337'203'685'477.625, 1e15, -1e300, std::nan(""),
          std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
        EXPECT_THROW(Currency::FromDouble(units), OverflowError) << units;
    }
}

TEST(Currency, TurnsIntoTheNearestDouble) {
    EXPECT_EQ(Currency::FromScaled(1'000).ToDouble(), 0.1);
    EXPECT_EQ(Currency::FromScaled(-12'345'678).ToDouble(), -1234.5678);
    EXPECT_EQ(Currency::FromScaled(kMost).ToDouble(), 922'337'203'685'477.5807);
    for (const std::int64_t scaled : {1L, 99'999'999'999'999L, 9'007'199'254'740'991L, -1L}) {
        const auto amount = Currency::FromScaled(scaled);
        EXPECT_EQ(Currency::FromDouble(amount.ToDouble()), amount) << scaled;
    }
}

TEST(Currency, ReckonsExactly) {
    const auto a = Currency::FromScaled(1);
    const auto b = Currency::FromUnits(-3);
    EXPECT_EQ((a + b).Scaled(), -29'999);
    EXPECT_EQ((a - b).Scaled(), 30'001);
    EXPECT_EQ((-b).Scaled(), 30'000);
    EXPECT_EQ((b * 7).Scaled(), -210'000);
    EXPECT_EQ((-7 * b).Scaled(), 210'000);
    EXPECT_LT(b, a);
}

TEST(Currency, OverflowIsAnErrorAndLeavesTheAmount) {
    auto amount = Currency::FromScaled(kMost);
    EXPECT_THROW(amount += Currency::FromScaled(1), OverflowError);
    EXPECT_EQ(amount.Scaled(), kMost);
    EXPECT_THROW(amount -= Currency::FromScaled(-1), OverflowError);
    EXPECT_EQ(amount.Scaled(), kMost);
    EXPECT_THROW(amount * 2, OverflowError);
    EXPECT_THROW(-Currency::FromScaled(kLeast), OverflowError);
    EXPECT_THROW(Currency::FromUnits(kMost / Currency::kScale + 1), OverflowError);
    EXPECT_EQ((amount + Currency::FromScaled(kLeast)).Scaled(), -1);
}

} // namespace
} // namespace platform
