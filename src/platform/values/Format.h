#pragma once

#include <string>
#include <string_view>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"
#include "platform/values/Value.h"

namespace platform {

/// How money is shown everywhere.
inline constexpr std::string_view kMoneyFormat = "#,###.00;(#,###.00);0.00;0.00";
inline constexpr std::string_view kDateFormat = "mm/dd/yyyy";

/// A number by a number format: `0` a digit always shown, `#` one shown where it matters, `,`
/// between digits groups by thousands, `.` the decimal point (shown even if no decimal follows),
/// `%` times 100, anything in quotes, after a backslash or not of the format unchanged; sections
/// for positive, negative, zero and null separated by `;`, an empty one standing for the first.
/// What rounds to zero is shown as zero is. Halves round away from zero on the exact decimal value,
/// for a double the shortest text. Of the named formats "Currency", "Fixed", "Standard",
/// "Percent", "Yes/No" and "True/False" are known.
std::string FormatNumber(double number, std::string_view format);
std::string FormatNumber(Currency amount, std::string_view format);

/// A day by a date format of m, mm, mmm, mmmm, d, dd, ddd, dddd, yy, yyyy. Empty for the unset
/// date.
std::string FormatDate(Date date, std::string_view format);

/// Any value by a format: numbers and money by a number format, dates by a date format (each by the
/// other through the serial number), a text that reads as a number or a day likewise, other text as
/// it stands; null by the fourth section, else empty. An empty format gives the value's text. A
/// format without a digit is a date format if it has a letter of one.
std::string Format(const Value& value, std::string_view format);

/// Money as it is shown everywhere: "1,234.50", "(5.00)", "0.00".
std::string FormatMoney(Currency amount);

} // namespace platform
