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

/// Formats a number by a number format: `0` a digit always shown, `#` a digit shown only if it is
/// needed, `,` between digits groups by thousands, `.` the decimal point (shown even if no decimal
/// follows), `%` times 100; anything in quotes, after a backslash or unknown to the format is
/// copied. `;` separates sections for positive, negative, zero and null; instead of an empty one
/// the first is used. A number that rounds to zero is shown as zero is. Halves round away from
/// zero, by the exact decimal value or, for a double, by its shortest text. Of the named formats
/// "Currency", "Fixed", "Standard", "Percent", "Yes/No" and "True/False" are known.
std::string FormatNumber(double number, std::string_view format);
std::string FormatNumber(Currency amount, std::string_view format);

/// Formats a day by a date format of m, mm, mmm, mmmm, d, dd, ddd, dddd, yy, yyyy. Empty for the
/// unset date.
std::string FormatDate(Date date, std::string_view format);

/// Formats any value: numbers and money by a number format, dates by a date format (each by the
/// other kind of format through the serial number), a text that reads as a number or a day
/// likewise. Other text is returned as it is; null by the fourth section, otherwise as an empty
/// text. An empty format gives the value's text. A format without a digit is a date format if it
/// has a letter of one.
std::string Format(const Value& value, std::string_view format);

/// Returns money as it is shown everywhere: "1,234.50", "(5.00)", "0.00".
std::string FormatMoney(Currency amount);

} // namespace platform
