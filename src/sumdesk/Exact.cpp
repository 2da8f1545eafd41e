#include "sumdesk/Exact.h"

#include <cstdint>

#include "platform/values/NumberFormat.h"

namespace sumdesk {

namespace {

constexpr int kMostDecimals = 10;

Exact PowerOfTen(std::uint64_t exponent) {
    mpz_class power;
    mpz_ui_pow_ui(power.get_mpz_t(), 10, exponent);
    return Exact(power);
}

} // namespace

bool IsTooLarge(const Exact& number) {
    return abs(number) >= PowerOfTen(kMostWholeDigits);
}

Exact ExactOf(const platform::Digits& digits) {
    if (digits.digits.empty()) return {};
    // 0.DIGITS times ten to the pointAt
    const auto length = static_cast<std::int64_t>(digits.digits.size());
    const std::int64_t zeros = digits.pointAt - length;
    Exact number(mpz_class(digits.digits, 10));
    if (zeros > 0) {
        number *= PowerOfTen(static_cast<std::uint64_t>(zeros));
    } else {
        number /= PowerOfTen(static_cast<std::uint64_t>(-zeros));
    }
    return digits.negative ? Exact(-number) : number;
}

platform::Digits Rounded(const Exact& number, int places) {
    const Exact scaled = abs(number) * PowerOfTen(static_cast<std::uint64_t>(places));
    const mpz_class whole = (2 * scaled.get_num() + scaled.get_den()) / (2 * scaled.get_den());
    if (whole == 0) return {};
    platform::Digits rounded;
    rounded.negative = number < 0;
    rounded.digits = whole.get_str();
    rounded.pointAt = static_cast<std::int64_t>(rounded.digits.size()) - places;
    rounded.digits.erase(rounded.digits.find_last_not_of('0') + 1);
    return rounded;
}

double DoubleOf(const Exact& number) {
    return number.get_d();
}

std::string Shown(const Exact& number, Decimals decimals) {
    if (decimals == Decimals::Cents) {
        return platform::FormatDigits(Rounded(number, 2), "#,##0.00");
    }
    const platform::Digits rounded = Rounded(number, kMostDecimals);
    const bool isWhole = static_cast<std::int64_t>(rounded.digits.size()) <= rounded.pointAt;
    const bool isPlain = isWhole || rounded.digits.empty();
    return platform::FormatDigits(rounded, isPlain ? "#,##0" : "#,##0.##########");
}

} // namespace sumdesk
