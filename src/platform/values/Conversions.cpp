#include "platform/values/Conversions.h"

#include <charconv>
#include <cmath>
#include <concepts>
#include <limits>

#include "platform/values/Digits.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

[[noreturn]] void ThrowTooLarge() {
    throw OverflowError("The number is too large.");
}

template <std::signed_integral T>
T RoundTo(double number) {
    const double whole = std::nearbyint(number);
    if (!(whole >= std::numeric_limits<T>::min() && whole <= std::numeric_limits<T>::max())) {
        ThrowTooLarge();
    }
    return static_cast<T>(whole);
}

// Writes the four digits after the point.
void PutDecimals(char* place, std::uint64_t decimals) {
    for (int i = 3; i >= 0; --i, decimals /= 10)
        place[i] = static_cast<char>('0' + decimals % 10);
}

} // namespace

double StrToDouble(std::string_view text) {
    if (const auto number = TryParseNumber(text)) return *number;
    if (Trim(text).empty()) return 0;
    throw ConversionError("\"" + std::string(text) + "\" is not a number.");
}

float StrToSingle(std::string_view text) {
    const auto number = static_cast<float>(StrToDouble(text));
    if (std::isinf(number)) ThrowTooLarge();
    return number;
}

std::int16_t StrToInt16(std::string_view text) {
    return RoundToInt16(StrToDouble(text));
}

std::int32_t StrToInt32(std::string_view text) {
    return RoundToInt32(StrToDouble(text));
}

Currency StrToMoney(std::string_view text) {
    try {
        return TryParseMoney(text).value_or(Currency());
    } catch (const OverflowError&) {
        return {};
    }
}

bool StrToBool(std::string_view text) {
    return EqualIgnoringCase(text, "TRUE");
}

std::int16_t RoundToInt16(double number) {
    return RoundTo<std::int16_t>(number);
}

std::int32_t RoundToInt32(double number) {
    return RoundTo<std::int32_t>(number);
}

std::optional<double> TryParseNumber(std::string_view text) {
    const auto scan = ScanDigits(text);
    if (!scan) return std::nullopt;
    if (scan->digits.empty()) return 0.0;
    const std::string plain = "0." + scan->digits + "e" + std::to_string(scan->pointAt);
    double number = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    if (error == std::errc::result_out_of_range) {
        // Out of range at either end; a number that is too small counts as zero.
        if (scan->pointAt > 0) ThrowTooLarge();
        number = 0;
    }
    return scan->negative ? -number : number;
}

std::optional<Currency> TryParseMoney(std::string_view text) {
    const auto scan = ScanDigits(text);
    if (!scan) return std::nullopt;
    constexpr std::int64_t kDecimals = 4;
    constexpr std::int64_t kMostDigits = 19;
    const auto count = static_cast<std::int64_t>(scan->digits.size());
    const std::int64_t kept = scan->pointAt + kDecimals;
    if (count == 0 || kept < 0) return Currency();
    if (kept > kMostDigits) detail::ThrowMoneyOverflow();

    const auto digit = [&](std::int64_t i) {
        return i < count ? scan->digits[static_cast<std::size_t>(i)] : '0';
    };
    std::uint64_t magnitude = 0;
    for (std::int64_t i = 0; i < kept; ++i) {
        magnitude = magnitude * 10 + static_cast<std::uint64_t>(digit(i) - '0');
    }
    // The digits have no trailing zeros, so if another digit follows the next one, the rest is more
    // than a half.
    const char next = digit(kept);
    const bool half = next == '5' && count == kept + 1;
    if (half ? (magnitude & 1) != 0 : next >= '5') ++magnitude;

    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (magnitude > kMost + (scan->negative ? 1 : 0)) detail::ThrowMoneyOverflow();
    return Currency::FromScaled(
        static_cast<std::int64_t>(scan->negative ? 0 - magnitude : magnitude));
}

std::string NumberToText(double number) {
    if (number == 0) return "0";
    const double size = std::fabs(number);
    const bool plain = size < 1e15 && size >= 1e-15;
    char text[64];
    const auto end = plain
                         ? std::to_chars(text, text + sizeof text, number, std::chars_format::fixed)
                         : std::to_chars(text, text + sizeof text, number);
    for (char* c = text; !plain && c != end.ptr; ++c) {
        if (*c == 'e') *c = 'E';
    }
    return {text, end.ptr};
}

std::string MoneyToFixedText(Currency amount) {
    const std::int64_t scaled = amount.Scaled();
    const auto bits = static_cast<std::uint64_t>(scaled);
    const std::uint64_t magnitude = scaled < 0 ? 0 - bits : bits;
    char text[32];
    char* place = text;
    if (scaled < 0) *place++ = '-';
    place = std::to_chars(place, text + sizeof text, magnitude / 10'000).ptr;
    *place++ = '.';
    PutDecimals(place, magnitude % 10'000);
    return {text, place + 4};
}

std::string MoneyToText(Currency amount) {
    std::string text = MoneyToFixedText(amount);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

} // namespace platform
