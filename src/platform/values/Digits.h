#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/values/Currency.h"

namespace platform {

/// A number as people write it, in exact decimal digits: 0.DIGITS times ten to the `pointAt`.
struct Digits {
    bool negative = false;
    std::string digits;       ///< without zeros at either end; empty for 0
    std::int64_t pointAt = 0; ///< the place of the point, counted from the first digit
};

/// Return the digits of a number in its shortest form, and of an amount of money. The number must
/// be finite.
Digits DigitsOf(double number);
Digits DigitsOf(Currency amount);

/// Rounds to `places` decimals, halves away from zero.
void RoundDigits(Digits& number, std::int64_t places);

/// Reads a number: blanks around it, a sign, "$", thousands commas, parentheses for negative, an
/// exponent. Returns nothing for a blank text or junk.
std::optional<Digits> ScanDigits(std::string_view text);

} // namespace platform
