#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/values/Currency.h"

namespace platform {

// Conversions that tolerate empty input: a blank text is 0. Any other text converts as numbers are
// written by people: blanks around it, a sign, thousands commas, a leading "$", parentheses for
// negative, an exponent. Junk throws ConversionError, a number too large OverflowError.
// Fractions round half to even where a whole number is asked for.
double StrToDouble(std::string_view text);
float StrToSingle(std::string_view text);
std::int16_t StrToInt16(std::string_view text);
std::int32_t StrToInt32(std::string_view text);
/// Exact to four decimals, further ones rounded half to even. Alone of them, it gives 0 for
/// whatever does not convert, too large an amount included.
Currency StrToMoney(std::string_view text);
/// True for "TRUE" in any case, otherwise false.
bool StrToBool(std::string_view text);

// The strict forms that those rest on: nothing for a blank text or junk, an OverflowError for what
// is too large.
std::optional<double> TryParseNumber(std::string_view text);
std::optional<Currency> TryParseMoney(std::string_view text);

/// The shortest decimal form that reads back as the same number; an exponent ("1E+15") only from
/// 1e15 up and below 1e-15.
std::string NumberToText(double number);
/// A whole number nearest to `number`, halves to the even one; an OverflowError out of range.
std::int16_t RoundToInt16(double number);
std::int32_t RoundToInt32(double number);

/// At least no, at most four decimals: "1234.5".
std::string MoneyToText(Currency amount);
/// Always four decimals, no thousands: "1234.5000".
std::string MoneyToFixedText(Currency amount);

} // namespace platform
