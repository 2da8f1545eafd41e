#include "platform/values/Conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "platform/values/Errors.h"

namespace platform {
namespace {

TEST(Conversions, ReadNumbersAsPeopleWriteThem) {
    struct Case {
        const char* text;
        double number;
        std::int64_t scaled;
    };
    const Case cases[] = {
        {"0", 0, 0},
        {"-0.0", 0, 0},
        {"1,234.50", 1234.5, 12'345'000},
        {"(5.00)", -5, -50'000},
        {"($1,234.5)", -1234.5, -12'345'000},
        {"( 5 )", -5, -50'000},
        {"$5", 5, 50'000},
        {"-$5", -5, -50'000},
        {"$-5", -5, -50'000},
        {" +7 ", 7, 70'000},
        {"- 7", -7, -70'000},
        {"-.5", -0.5, -5'000},
        {"5.", 5, 50'000},
        {"007.50", 7.5, 75'000},
        {"1e3", 1000, 10'000'000},
        {"1.5E-2", 0.015, 150},
        {"2.5e+1", 25, 250'000},
        {"0.00005e4", 0.5, 5'000},
        {"1,234,567", 1'234'567, 12'345'670'000},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(TryParseNumber(c.text), c.number) << c.text;
        EXPECT_EQ(StrToDouble(c.text), c.number) << c.text;
        const auto amount = TryParseMoney(c.text);
        ASSERT_TRUE(amount) << c.text;
        EXPECT_EQ(amount->Scaled(), c.scaled) << c.text;
    }
}

TEST(Conversions, JunkIsAnErrorButForMoneyThatIsZero) {
    for (const char* text : {"abc", "5 apples", "1.2.3", "--5",   "(5",  "5)",        "()",  "$",
                             ".",   "-",        ",5",    "1.5,0", "e5",  "1e",        "1e+", "0x10",
                             "nan", "inf",      "1 2",   "(-5)",  "$$5", "12/31/2024"}) {
        EXPECT_FALSE(TryParseNumber(text)) << text;
        EXPECT_FALSE(TryParseMoney(text)) << text;
        EXPECT_THROW(StrToDouble(text), ConversionError) << text;
        EXPECT_THROW(StrToSingle(text), ConversionError) << text;
        EXPECT_THROW(StrToInt16(text), ConversionError) << text;
        EXPECT_THROW(StrToInt32(text), ConversionError) << text;
        EXPECT_TRUE(StrToMoney(text).IsZero()) << text;
    }
}

TEST(Conversions, ABlankTextIsZeroButNoNumber) {
    for (const char* text : {"", "   ", "\t\r\n"}) {
        EXPECT_EQ(StrToDouble(text), 0);
        EXPECT_EQ(StrToSingle(text), 0);
        EXPECT_EQ(StrToInt16(text), 0);
        EXPECT_EQ(StrToInt32(text), 0);
        EXPECT_TRUE(StrToMoney(text).IsZero());
        EXPECT_FALSE(TryParseNumber(text));
        EXPECT_FALSE(TryParseMoney(text));
    }
}

TEST(Conversions, WholeNumbersRoundHalvesToEvenAndKeepTheirRange) {
    EXPECT_EQ(StrToInt16("2.5"), 2);
    EXPECT_EQ(StrToInt16("3.5"), 4);
    EXPECT_EQ(StrToInt16("-2.5"), -2);
    EXPECT_EQ(StrToInt16("2.51"), 3);
    EXPECT_EQ(StrToInt16("32767.4"), 32'767);
    EXPECT_THROW(StrToInt16("32767.5"), OverflowError);
    EXPECT_EQ(StrToInt16("-32768.5"), -32'768);
    EXPECT_THROW(StrToInt16("-32769"), OverflowError);
    EXPECT_EQ(StrToInt32("2,147,483,647.4"), 2'147'483'647);
    EXPECT_THROW(StrToInt32("2147483648"), OverflowError);
    EXPECT_EQ(StrToInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST(Conversions, NumbersBeyondTheRangeOverflowAndTinyOnesVanish) {
    EXPECT_THROW(StrToDouble("1e309"), OverflowError);
    EXPECT_THROW(StrToDouble("-1e99999999999999999999"), OverflowError);
    EXPECT_EQ(StrToDouble("1e-400"), 0);
    EXPECT_EQ(StrToDouble("1e-99999999999999999999"), 0);
    EXPECT_EQ(StrToDouble("0e99999"), 0);
    EXPECT_THROW(StrToSingle("1e39"), OverflowError);
    EXPECT_EQ(StrToSingle("7.5"), 7.5F);
}

TEST(Conversions, MoneyIsReadExactlyToItsLimits) {
    struct Case {
        const char* text;
        std::int64_t scaled;
    };
    const Case cases[] = {
        {"0.00005", 0},
        {"0.00015", 2},
        {"0.000150000000000000000001", 2},
        {"0.000250000000000000000001", 3},
        {"0.00025", 2},
        {"-0.00025", -2},
        {"0.00004999", 0},
        {"0.0000099", 0},
        {"922337203685477.5807", std::numeric_limits<std::int64_t>::max()},
        {"922,337,203,685,477.58074", std::numeric_limits<std::int64_t>::max()},
        {"-922337203685477.5808", std::numeric_limits<std::int64_t>::min()},
        {"(922337203685477.5808)", std::numeric_limits<std::int64_t>::min()},
        {"123456789012345.6789", 1'234'567'890'123'456'789},
        {"9223372036854775807e-4", std::numeric_limits<std::int64_t>::max()},
    };
    for (const Case& c : cases) {
        const auto amount = TryParseMoney(c.text);
        ASSERT_TRUE(amount) << c.text;
        EXPECT_EQ(amount->Scaled(), c.scaled) << c.text;
    }
    for (const char* text : {"922337203685477.5808", "-922337203685477.5809", "1e15", "1e400",
                             "99999999999999999999999999"}) {
        EXPECT_THROW(TryParseMoney(text), OverflowError) << text;
        EXPECT_TRUE(StrToMoney(text).IsZero()) << text;
    }
}

TEST(Conversions, OnlyTheWordTrueIsTrue) {
    EXPECT_TRUE(StrToBool("TRUE"));
    EXPECT_TRUE(StrToBool("tRue"));
    for (const char* text : {"", "1", "-1", "yes", "False", " true"}) {
        EXPECT_FALSE(StrToBool(text)) << text;
    }
}

TEST(Conversions, NumbersShowInTheirShortestForm) {
    struct Case {
        double number;
        const char* text;
    };
    const Case cases[] = {
        {0.1, "0.1"},
        {-0.0, "0"},
        {1'000'000, "1000000"},
        {-2.5, "-2.5"},
        {0.1 + 0.2, "0.30000000000000004"},
        {1e-7, "0.0000001"},
        {999'999'999'999'999, "999999999999999"},
        {1e15, "1E+15"},
        {-1.25e300, "-1.25E+300"},
        {5e-324, "5E-324"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(NumberToText(c.number), c.text);
}

TEST(Conversions, AnyDoubleAndAnyAmountReadBackFromTheirTexts) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 20'000; ++i) {
        const std::uint64_t bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (std::isfinite(number)) {
            ASSERT_EQ(TryParseNumber(NumberToText(number)), number);
        }

        const auto scaled = static_cast<std::int64_t>(bits) >> (bits % 61);
        const auto amount = Currency::FromScaled(scaled);
        ASSERT_EQ(TryParseMoney(MoneyToText(amount)), amount);
        ASSERT_EQ(TryParseMoney(MoneyToFixedText(amount)), amount);
    }
}

TEST(Conversions, MoneyShowsItsDecimals) {
    struct Case {
        std::int64_t scaled;
        const char* shortest;
        const char* fixed;
    };
    const Case cases[] = {
        {0, "0", "0.0000"},
        {1, "0.0001", "0.0001"},
        {-1, "-0.0001", "-0.0001"},
        {12'345'000, "1234.5", "1234.5000"},
        {-5'000'000, "-500", "-500.0000"},
        {std::numeric_limits<std::int64_t>::min(), "-922337203685477.5808",
         "-922337203685477.5808"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(MoneyToText(Currency::FromScaled(c.scaled)), c.shortest);
        EXPECT_EQ(MoneyToFixedText(Currency::FromScaled(c.scaled)), c.fixed);
    }
}

} // namespace
} // namespace platform
