#pragma once

#include <compare>
#include <cstdint>

namespace platform {

namespace detail {
[[noreturn]] void ThrowMoneyOverflow();
}

/// An amount of money: a 64-bit integer scaled by 10,000. It is exact: an amount that does not fit
/// throws an OverflowError. It is never converted to a double implicitly.
class Currency {
  public:
    static constexpr std::int64_t kScale = 10'000;

    constexpr Currency() = default;

    /// Returns an amount from its scaled form: 12345 is 1.2345.
    static constexpr Currency FromScaled(std::int64_t scaled) { return Currency(scaled); }
    /// Returns an amount of whole units.
    static constexpr Currency FromUnits(std::int64_t units) { return Currency(kScale) * units; }
    /// Returns the nearest amount; halves round to the even last digit. Whether it is a half is
    /// seen on the double times 10,000, so that 0.00005 is one although no double is exactly that.
    /// NaN and infinities throw an OverflowError.
    static Currency FromDouble(double units);

    constexpr std::int64_t Scaled() const { return scaled_; }
    constexpr bool IsZero() const { return scaled_ == 0; }
    /// Returns the nearest double.
    double ToDouble() const;

    constexpr Currency operator-() const { return Currency() - *this; }
    constexpr Currency& operator+=(Currency other) {
        std::int64_t result = 0;
        if (__builtin_add_overflow(scaled_, other.scaled_, &result)) detail::ThrowMoneyOverflow();
        scaled_ = result;
        return *this;
    }
    constexpr Currency& operator-=(Currency other) {
        std::int64_t result = 0;
        if (__builtin_sub_overflow(scaled_, other.scaled_, &result)) detail::ThrowMoneyOverflow();
        scaled_ = result;
        return *this;
    }
    friend constexpr Currency operator+(Currency a, Currency b) { return a += b; }
    friend constexpr Currency operator-(Currency a, Currency b) { return a -= b; }
    friend constexpr Currency operator*(Currency amount, std::int64_t factor) {
        std::int64_t product = 0;
        if (__builtin_mul_overflow(amount.scaled_, factor, &product)) detail::ThrowMoneyOverflow();
        return Currency(product);
    }
    friend constexpr Currency operator*(std::int64_t factor, Currency amount) {
        return amount * factor;
    }

    friend constexpr bool operator==(Currency, Currency) = default;
    friend constexpr auto operator<=>(Currency a, Currency b) { return a.scaled_ <=> b.scaled_; }

  private:
    constexpr explicit Currency(std::int64_t scaled) : scaled_(scaled) {}

    std::int64_t scaled_ = 0;
};

} // namespace platform
