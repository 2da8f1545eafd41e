#include "platform/values/Currency.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/values/Errors.h"

namespace platform {
namespace {

constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();

TEST(Currency, RoundsADoubleToTheNearestAmountAndHalvesToEven) {
    struct Case {
        double units;
        std::int64_t scaled;
    };
    const Case cases[] = {
        {0.0, 0},
        {-0.0, 0},
        {0.1, 1'000},
        {0.00005, 0},
        {0.00025, 2},
        {0.03125, 312},
        {0.09375, 938},
        {-0.03125, -312},
        {-0.09375, -938},
        {-0.00005, 0},
        {2.5e-5, 0},
        {0.00005000001, 1},
        {1234.56785, 12'345'678},
        {-1234.5679, -12'345'679},
        {900'719'925'474.0625, 9'007'199'254'740'625},
        // Beyond 53 bits of scaled amount the double itself still says exactly what it is.
        {922'337'203'685'477.5, 9'223'372'036'854'775'000},
        {922'337'203'685'477.375, 9'223'372'036'854'773'750},
        {-922'337'203'685'477.5, -9'223'372'036'854'775'000},
        {1'000'000'000'000.0001220703125, 10'000'000'000'000'001},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Currency::FromDouble(c.units).Scaled(), c.scaled) << c.units;
    }
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
