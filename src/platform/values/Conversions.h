#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/values/Currency.h"

namespace platform {

// Conversions that tolerate empty input: a blank text is 0. Any other text is read as people write
// numbers: blanks around it, a sign, thousands commas, a leading "$", parentheses for negative, an
// exponent. Junk throws ConversionError, a number that is too large OverflowError. Fractions round
// half to even if a whole number is asked for.
double StrToDouble(std::string_view text);
float StrToSingle(std::string_view text);
std::int16_t StrToInt16(std::string_view text);
std::int32_t StrToInt32(std::string_view text);
/// Reads an amount to four decimals; further ones are rounded half to even. Unlike the others, it
/// returns 0 for any text that doesn't convert, even for an amount that is too large.
Currency StrToMoney(std::string_view text);
/// Returns true for "TRUE" in any case, otherwise false.
bool StrToBool(std::string_view text);

// The strict functions below the ones above: they return nothing for a blank text or junk, and
// throw an OverflowError for a number that is too large.
std::optional<double> TryParseNumber(std::string_view text);
std::optional<Currency> TryParseMoney(std::string_view text);

/// Returns the shortest decimal form that reads back as the same number; an exponent ("1E+15") only
/// from 1e15 up and below 1e-15.
std::string NumberToText(double number);
/// Returns the whole number nearest to `number`; halves round to the even one. Throws an
/// OverflowError if it is out of range.
std::int16_t RoundToInt16(double number);
std::int32_t RoundToInt32(double number);

/// Returns an amount with only the decimals that it needs, at most four: "1234.5".
std::string MoneyToText(Currency amount);
/// Returns an amount with exactly four decimals and no thousands commas: "1234.5000".
std::string MoneyToFixedText(Currency amount);

} // namespace platform
