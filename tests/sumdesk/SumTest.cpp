#include "sumdesk/Sum.h"

#include <gtest/gtest.h>

#include "sumdesk/Calculator.h"

namespace tests {

namespace {

using sumdesk::Calculator;
using sumdesk::Decimals;
using sumdesk::Shown;
using sumdesk::SumError;
using sumdesk::WorkOut;

TEST(Sum, WorksOutWhatALandlordTypes) {
    struct Case {
        const char* sum;
        const char* result;
        const char* tidy;
    };
    const Case cases[] = {
        {"12+3", "15", "12 + 3"},
        {"2+3*4", "14", "2 + 3 \u00D7 4"},
        {"(2+3)x4", "20", "(2 + 3) \u00D7 4"},
        {"0.1+0.2", "0.3", "0.1 + 0.2"},
        {"10/4", "2.5", "10 \u00F7 4"},
        {"10/3*3", "10", "10 \u00F7 3 \u00D7 3"},
        {"1/3", "0.3333333333", "1 \u00F7 3"},
        {"2/3", "0.6666666667", "2 \u00F7 3"},
        {"-2/3", "-0.6666666667", "-2 \u00F7 3"},
        {"$1,234.50 + 0.5", "1,235", "$1,234.50 + 0.5"},
        {"5 - -3", "8", "5 - -3"},
        {"-(2+3)", "-5", "-(2 + 3)"},
        {"7 \u2212 9", "-2", "7 - 9"},
        {"2 \u00D7 3 \u00F7 4", "1.5", "2 \u00D7 3 \u00F7 4"},
        {".5*2=", "1", ".5 \u00D7 2"},
        {"0*5", "0", "0 \u00D7 5"},
        // A percentage is a share of what is before it where it is added or subtracted.
        {"200+10%", "220", "200 + 10%"},
        {"200-10%", "180", "200 - 10%"},
        {"200+-10%", "180", "200 + -10%"},
        {"100+10%-10%", "99", "100 + 10% - 10%"},
        {"5+3+10%", "8.8", "5 + 3 + 10%"},
        {"200*10%", "20", "200 \u00D7 10%"},
        {"20/10%", "200", "20 \u00F7 10%"},
        {"200+10%*2", "200.2", "200 + 10% \u00D7 2"},
        {"200+(10%)", "200.1", "200 + (10%)"},
        {"7.5%", "0.075", "7.5%"},
        {"999,999,999,999.99+0.01", "1,000,000,000,000", "999,999,999,999.99 + 0.01"},
        {"0.00000000004", "0", "0.00000000004"},
        {"0.00000000005", "0.0000000001", "0.00000000005"},
    };
    for (const Case& one : cases) {
        const auto result = WorkOut(one.sum);
        EXPECT_EQ(Shown(result.number, Decimals::AsNeeded), one.result) << one.sum;
        EXPECT_EQ(result.tidy, one.tidy) << one.sum;
    }
}

TEST(Sum, SaysWhatIsWrongAndWhere) {
    struct Case {
        std::string sum;
        std::size_t position;
        const char* text;
    };
    const Case cases[] = {
        {"", 0, "Enter a sum first, for example 12 + 3."},
        {"  =", 2, "Enter a sum first, for example 12 + 3."},
        {"12+", 3, "A number is missing at the end."},
        {"12+*3", 3, "A number is missing here."},
        {"()", 1, "A number is missing here."},
        {"%", 0, "A number is missing here."},
        {"(2+3", 4, "A closing bracket is missing."},
        {"2+3)*4", 3, "There is no opening bracket for this one."},
        {"2(3)", 1, "An operator is missing here."},
        {"2 3", 2, "An operator is missing here."},
        {"(2 3)", 3, "An operator is missing here."},
        {"5%3", 2, "An operator is missing here."},
        {"1=2", 1, "\"=\" can't be used in a sum."},
        {"1/0", 1, "A number can't be divided by zero."},
        {"5/(3-3)", 1, "A number can't be divided by zero."},
        {"1/0%", 1, "A number can't be divided by zero."},
        {"1.2.3+1", 0, "\"1.2.3\" is not a number."},
        {"1+.", 2, "\".\" is not a number."},
        {"2*a", 2, "\"a\" can't be used in a sum."},
        {"2*\u20AC3", 2, "\"\u20AC\" can't be used in a sum."},
        {"1e5", 1, "\"e\" can't be used in a sum."},
        {"1000000000000000", 0, "The number is too large."},
        {"900000000000000+900000000000000", 15, "The result is too large."},
        {"100000000*100000000", 9, "The result is too large."},
        {"-100000000*100000000", 10, "The result is too large."},
        {"1/0.0000000000000000001", 1, "The result is too large."},
        {std::string(200, '(') + "1", 100, "There are too many brackets."},
    };
    for (const Case& one : cases) {
        try {
            WorkOut(one.sum);
            ADD_FAILURE() << one.sum << " has a result";
        } catch (const SumError& fault) {
            EXPECT_STREQ(fault.what(), one.text) << one.sum;
            EXPECT_EQ(fault.Position(), one.position) << one.sum;
        }
    }
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
