#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A number as people write it, in exact decimal digits: 0.DIGITS times ten to the `pointAt`.
struct NumberScan {
    bool negative = false;
    std::string digits;       ///< without zeros at either end; empty for 0
    std::int64_t pointAt = 0; ///< where the point stands, counted from the first digit
};

/// Blanks around it, a sign, "$", thousands commas, parentheses for negative, an exponent. Nothing
/// for a blank text or junk.
std::optional<NumberScan> ScanNumber(std::string_view text);

} // namespace platform
