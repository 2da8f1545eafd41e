#include "sumdesk/Sum.h"

#include <gtest/gtest.h>

#include "sumdesk/Calculator.h"
#include "support/Cases.h"

namespace tests {

namespace {

using sumdesk::Calculator;
using sumdesk::Decimals;
using sumdesk::Shown;
using sumdesk::SumError;
using sumdesk::WorkOut;
using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/sums.cases";

TEST(Sum, WorksOutWhatALandlordTypes) {
    ForEachCase(kCases, "sums", [](const Case& each) {
        const auto result = WorkOut(each["sum"]);
        EXPECT_EQ(Shown(result.number, Decimals::AsNeeded), each["result"]);
        EXPECT_EQ(result.tidy, each["tidy"]);
    });
}

void ExpectFault(const std::string& sum, std::size_t position, const std::string& text) {
    try {
        WorkOut(sum);
        ADD_FAILURE() << "it has a result";
    } catch (const SumError& fault) {
        EXPECT_EQ(fault.what(), text);
        EXPECT_EQ(fault.Position(), position);
    }
}

TEST(Sum, SaysWhatIsWrongAndWhere) {
    ForEachCase(kCases, "faults", [](const Case& each) {
        ExpectFault(each["sum"], each.Number<std::size_t>("position"), each["text"]);
    });
    ExpectFault(std::string(200, '('), 100, "There are too many brackets.");
}

TEST(SumCalculator, GoesOnFromAResultWithAllItsDigits) {
    Calculator calculator;
    EXPECT_EQ(calculator.Enter("10/3"), "3.3333333333");
    EXPECT_EQ(calculator.Enter("3.3333333333*3"), "10");
    EXPECT_EQ(calculator.Enter("-10/3"), "-3.3333333333");
    EXPECT_EQ(calculator.Enter("2-3.3333333333*3"), "-8") << "the result without its sign";
    EXPECT_EQ(calculator.Enter("3.333333333*3"), "9.999999999") << "another number";
}

TEST(SumCalculator, GoesOnFromCentsAsTheyAreShown) {
    Calculator calculator;
    calculator.SetDecimals(Decimals::Cents);
    EXPECT_EQ(calculator.Enter("10/3"), "3.33");
    EXPECT_EQ(calculator.Enter("3.33*3"), "9.99");
    EXPECT_EQ(calculator.Enter("0.125+0"), "0.13") << "halves are rounded up";
    EXPECT_EQ(calculator.Enter("0-0.125"), "-0.13");
    EXPECT_EQ(calculator.Enter("0-0.004"), "0.00") << "without a sign";
    calculator.Store("10/3");
    calculator.AddToMemory("10/3");
    EXPECT_EQ(calculator.Memory(), "6.66") << "two amounts of 3.33";
}

TEST(SumCalculator, WritesATapeOfSumsAndMemory) {
    Calculator calculator;
    EXPECT_EQ(calculator.Memory(), "");
    calculator.Enter("12+3");
    calculator.Enter("15");
    calculator.Store("15*2");
    calculator.AddToMemory("200+10%");
    calculator.SubtractFromMemory("5");
    EXPECT_EQ(calculator.Memory(), "245");
    EXPECT_THROW(calculator.AddToMemory("1/0"), SumError);
    EXPECT_THROW(calculator.AddToMemory(""), SumError);
    EXPECT_THROW(calculator.AddToMemory("999999999999999"), SumError) << "the memory overflows";
    EXPECT_EQ(calculator.Memory(), "245");
    EXPECT_EQ(calculator.TapeText(),
              "12 + 3 = 15\n"
              "15 \u00D7 2 = 30\nMS 30\n"
              "200 + 10% = 220\nM+ 220, M = 250\n"
              "M- 5, M = 245\n");
    calculator.ClearMemory();
    EXPECT_FALSE(calculator.HasMemory());
    calculator.ClearTape();
    EXPECT_EQ(calculator.TapeText(), "");
}

TEST(SumCalculator, ShowsAheadOnlyWhatIsComplete) {
    const Calculator calculator;
    EXPECT_EQ(calculator.Preview("12+"), "");
    EXPECT_EQ(calculator.Preview("12"), "");
    EXPECT_EQ(calculator.Preview("-12"), "");
    EXPECT_EQ(calculator.Preview("12+3"), "15");
    EXPECT_EQ(calculator.Preview("12%"), "0.12");
    EXPECT_EQ(calculator.TapeText(), "");
}

} // namespace

} // namespace tests
