#include "platform/values/Format.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "support/Cases.h"

namespace platform {
namespace {

using support::Case;
using support::ForEachCase;

constexpr const char* kCases = VESTREL_TEST_DATA "/formats.cases";

TEST(Format, MoneyShowsAlikeEverywhere) {
    ForEachCase(kCases, "money", [](const Case& each) {
        EXPECT_EQ(FormatMoney(*TryParseMoney(each["amount"])), each["shown"]);
        EXPECT_EQ(Format(each["amount"], kMoneyFormat), each["shown"]);
    });
}

TEST(Format, PlacesOfANumberFormat) {
    ForEachCase(kCases, "numbers", [](const Case& each) {
        EXPECT_EQ(FormatNumber(each.Number<double>("number"), each["format"]), each["shown"]);
    });
}

TEST(Format, PartsOfADateFormat) {
    EXPECT_EQ(kDateFormat, "mm/dd/yyyy");
    ForEachCase(kCases, "the day 03/05/2024", [](const Case& each) {
        EXPECT_EQ(FormatDate(Date(2024, 3, 5), each["format"]), each["shown"]);
    });
    EXPECT_EQ(FormatDate(Date(100, 12, 31), "yy yyyy"), "00 0100");
    EXPECT_EQ(FormatDate(Date(), "yyyy"), "");
}

TEST(Format, AValueIsShownByItsKind) {
    struct Shown {
        Value value;
        const char* format;
        const char* shown;
    };
    const Shown cases[] = {
        {Value(), kMoneyFormat.data(), "0.00"},
        {Value(), "0.00", ""},
        {Value(), "0;0;0;\"none\"", "none"},
        {Value(), "mm/dd/yyyy", ""},
        {Currency::FromScaled(-50'000), kMoneyFormat.data(), "(5.00)"},
        {std::int32_t{1234}, "#,##0", "1,234"},
        {true, "Yes/No", "Yes"},
        {"1,234.5", "0.00", "1234.50"},
        {"abc", "0.00", "abc"},
        {" ", kMoneyFormat.data(), " "},
        {"2/3/2024", "mm/dd/yyyy", "02/03/2024"},
        {"2/3/2024", "0.00", "2/3/2024"},
        {"5", "mm/dd/yyyy", "5"},
        {Date(2024, 2, 3), "mmmm", "February"},
        {Date(2024, 2, 3), "0", "45325"},
        {std::int32_t{45'325}, "mm/dd/yyyy", "02/03/2024"},
        {Date(2024, 2, 3), "", "02/03/2024"},
        {false, "", "False"},
    };
    for (const Shown& c : cases)
        EXPECT_EQ(Format(c.value, c.format), c.shown) << c.format;
}

} // namespace
} // namespace platform
