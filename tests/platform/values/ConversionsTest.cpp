#include "platform/values/Conversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace platform {
namespace {

using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/conversions.cases";

Currency Scaled(const Case& each) {
    return Currency::FromScaled(each.Number<std::int64_t>("scaled"));
}

TEST(Conversions, ReadNumbersAsPeopleWriteThem) {
    ForEachCase(kCases, "numbers as people write them", [](const Case& each) {
        EXPECT_EQ(TryParseNumber(each["text"]), each.Number<double>("number"));
        EXPECT_EQ(StrToDouble(each["text"]), each.Number<double>("number"));
        EXPECT_EQ(TryParseMoney(each["text"]), Scaled(each));
    });
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
    ForEachCase(kCases, "money to its limits",
                [](const Case& each) { EXPECT_EQ(TryParseMoney(each["text"]), Scaled(each)); });
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
    ForEachCase(kCases, "numbers in their shortest form", [](const Case& each) {
        EXPECT_EQ(NumberToText(each.Number<double>("number")), each["text"]);
    });
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
    ForEachCase(kCases, "decimals of money", [](const Case& each) {
        EXPECT_EQ(MoneyToText(Scaled(each)), each["shortest"]);
        EXPECT_EQ(MoneyToFixedText(Scaled(each)), each["fixed"]);
    });
}

} // namespace
} // namespace platform
