#include "platform/values/Format.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace platform {
namespace {

TEST(Format, MoneyShowsAlikeEverywhere) {
    struct Case {
        const char* amount;
        const char* shown;
    };
    const Case cases[] = {
        {"0", "0.00"},
        {"0.5", ".50"},
        {"-5", "(5.00)"},
        {"-.5", "(.50)"},
        {"1234.5", "1,234.50"},
        {"999.995", "1,000.00"},
        {"999.9949", "999.99"},
        {"0.005", ".01"},
        {"-0.005", "(.01)"},
        {"0.0049", "0.00"},
        {"-0.0049", "0.00"},
        {"123456", "123,456.00"},
        {"-1234567.891", "(1,234,567.89)"},
        {"100000", "100,000.00"},
        {"922337203685477.5807", "922,337,203,685,477.58"},
        {"-922337203685477.5808", "(922,337,203,685,477.58)"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FormatMoney(*TryParseMoney(c.amount)), c.shown) << c.amount;
        EXPECT_EQ(Format(c.amount, kMoneyFormat), c.shown) << c.amount;
    }
}

TEST(Format, PlacesOfANumberFormat) {
    struct Case {
        double number;
        const char* format;
        const char* shown;
    };
    const Case cases[] = {
        {7.25, "#.000", "7.250"},
        {7.25, "#.0", "7.3"},
        {-7.25, "#.0", "-7.3"},
        {0.5, "#.00", ".50"},
        {0, "#.0", ".0"},
        {-0.04, "#.0", ".0"},
        {12.5, "#,###.0", "12.5"},
        {1234.56, "#,###.0", "1,234.6"},
        {7.5, "#,###.0#", "7.5"},
        {7.505, "#,###.0#", "7.51"},
        {7, "#,###.0#", "7.0"},
        {0.07 * 100, "#,###.0#", "7.0"},
        {1.005, "0.00", "1.01"},
        {2.5, "0", "3"},
        {-0.4, "0", "0"},
        {9.99, "0.0", "10.0"},
        {5, "0.##", "5."},
        {5, "0000", "0005"},
        {12345, "0,000", "12,345"},
        {5, "0,000", "0,005"},
        {1234.5, ".00", "1234.50"},
        {0, "#", ""},
        {1234567, "#,#", "1,234,567"},
        {123456789, "000-00-0000", "123-45-6789"},
        {5551212, "###-####", "555-1212"},
        {0.125, "0%", "13%"},
        {0.075, "0.0#%", "7.5%"},
        {-0.00001, "0.0%", "0.0%"},
        {5, "\"no. \"0", "no. 5"},
        {5, "\\#0", "#5"},
        {5, "0;\"minus; \"0", "5"},
        {-5, "0;\"minus; \"0", "minus; 5"},
        {-5, "0;;\"nil\"", "-5"},
        {0, "0;;\"nil\"", "nil"},
        {0, "0.0;(0.0)", "0.0"},
        {-0.01, "0.0;(0.0)", "0.0"},
        {-0.01, "0.0;(0.0);\"nil\"", "nil"},
        {1e21, "#,##0", "1,000,000,000,000,000,000,000"},
        {1e-300, "0.00", "0.00"},
        {1234.5, "Currency", "$1,234.50"},
        {-1234.5, "currency", "($1,234.50)"},
        {0.5, "Fixed", "0.50"},
        {1234.5, "Standard", "1,234.50"},
        {0.256, "Percent", "25.60%"},
        {0.3, "Yes/No", "Yes"},
        {0, "Yes/No", "No"},
        {1234.5, "", "1234.5"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(FormatNumber(c.number, c.format), c.shown) << c.number << " " << c.format;
    }
}

TEST(Format, PartsOfADateFormat) {
    const Date day(2024, 3, 5);
    EXPECT_EQ(FormatDate(day, kDateFormat), "03/05/2024");
    EXPECT_EQ(FormatDate(day, "m/d/yy"), "3/5/24");
    EXPECT_EQ(FormatDate(day, "MMM d, yyyy"), "Mar 5, 2024");
    EXPECT_EQ(FormatDate(day, "dddd, mmmm dd"), "Tuesday, March 05");
    EXPECT_EQ(FormatDate(day, "ddd \"day\" yyyymmdd"), "Tue day 20240305");
    EXPECT_EQ(FormatDate(day, "Long Date"), "Tuesday, March 05, 2024");
    EXPECT_EQ(FormatDate(Date(100, 12, 31), "yy yyyy"), "00 0100");
    EXPECT_EQ(FormatDate(Date(), "yyyy"), "");
}

TEST(Format, AValueIsShownByItsKind) {
    struct Case {
        Value value;
        const char* format;
        const char* shown;
    };
    const Case cases[] = {
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
    for (const Case& c : cases)
        EXPECT_EQ(Format(c.value, c.format), c.shown) << c.format;
}

} // namespace
} // namespace platform
