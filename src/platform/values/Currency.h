#pragma once

#include <compare>
#include <cstdint>

namespace platform {

/// An amount of money: a 64-bit integer scaled by 10,000. Exact; what does not fit is an
/// OverflowError, never a wrong amount. It never turns into a double by itself.
class Currency {
  public:
    static constexpr std::int64_t kScale = 10'000;

    constexpr Currency() = default;

    /// An amount from its scaled form: 12345 is 1.2345.
    static constexpr Currency FromScaled(std::int64_t scaled) { return Currency(scaled); }
    /// A whole number of units.
    static Currency FromUnits(std::int64_t units);
    /// The nearest amount, halves to the even last digit. NaN and infinities are an OverflowError.
    static Currency FromDouble(double units);

    constexpr std::int64_t Scaled() const { return scaled_; }
    constexpr bool IsZero() const { return scaled_ == 0; }
    double ToDouble() const;

    Currency operator-() const;
    Currency& operator+=(Currency other);
    Currency& operator-=(Currency other);
    friend Currency operator+(Currency a, Currency b) { return a += b; }
    friend Currency operator-(Currency a, Currency b) { return a -= b; }
    friend Currency operator*(Currency amount, std::int64_t factor);
    friend Currency operator*(std::int64_t factor, Currency amount) { return amount * factor; }

    friend constexpr auto operator<=>(Currency, Currency) = default;

  private:
    constexpr explicit Currency(std::int64_t scaled) : scaled_(scaled) {}

    std::int64_t scaled_ = 0;
};

}  // namespace platform
