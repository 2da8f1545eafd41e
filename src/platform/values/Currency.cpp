#include "platform/values/Currency.h"

#include <cmath>
#include <limits>

#include "platform/values/Errors.h"

namespace platform {

namespace {

// Above this number a double has no bits left for halves, and its product with the scale would be
// rounded once too often.
constexpr double kExactDoubles = 9'007'199'254'740'992.0; // 2^53

// Returns units * 10,000 in whole numbers, for doubles whose last bit is worth less than a unit.
std::int64_t ScaleExactly(double units) {
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(units), &exponent);
    const int shift = 53 - exponent;
    __extension__ using Wide = unsigned __int128;
    const Wide product = Wide{static_cast<std::uint64_t>(std::ldexp(fraction, 53))} *
                         static_cast<std::uint64_t>(Currency::kScale);
    Wide scaled = product >> shift;
    const Wide rest = product - (scaled << shift);
    const Wide half = Wide{1} << (shift - 1);
    if (rest > half || (rest == half && (scaled & 1) != 0)) ++scaled;

    const bool negative = units < 0;
    const Wide limit = Wide{std::numeric_limits<std::int64_t>::max()} + (negative ? 1 : 0);
    if (scaled > limit) detail::ThrowMoneyOverflow();
    const auto magnitude = static_cast<std::uint64_t>(scaled);
    return static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude);
}

} // namespace

void detail::ThrowMoneyOverflow() {
    throw OverflowError("The amount of money is too large.");
}

Currency Currency::FromDouble(double units) {
    const double scaled = units * static_cast<double>(kScale);
    if (!(std::fabs(units) < 1e15)) detail::ThrowMoneyOverflow();
    if (std::fabs(scaled) < kExactDoubles) {
        return FromScaled(static_cast<std::int64_t>(std::nearbyint(scaled)));
    }
    return FromScaled(ScaleExactly(units));
}

double Currency::ToDouble() const {
    constexpr auto scale = static_cast<double>(kScale);
    const auto scaled = static_cast<double>(scaled_);
    if (std::fabs(scaled) < kExactDoubles) return scaled / scale;
    const std::int64_t units = scaled_ / kScale;
    return static_cast<double>(units) + static_cast<double>(scaled_ % kScale) / scale;
}

} // namespace platform
