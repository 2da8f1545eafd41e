#pragma once

#include <string>

#include <gmpxx.h>

#include "platform/values/Digits.h"

namespace sumdesk {

/// A number of the calculator: a fraction of two whole numbers of any length, so that nothing is
/// rounded before it is shown. A third of 10, times 3, is 10.
using Exact = mpq_class;

/// The number of digits that a number may have before the point.
inline constexpr int kMostWholeDigits = 15;

/// Returns whether a number has more whole digits: it is beyond any amount of money.
bool IsTooLarge(const Exact& number);

/// Returns a number that isn't too large as a fraction.
Exact ExactOf(const platform::Digits& digits);

/// Returns the number rounded to `places` decimals, halves away from zero.
platform::Digits Rounded(const Exact& number, int places);

/// Returns the nearest double.
double DoubleOf(const Exact& number);

enum class Decimals {
    AsNeeded, ///< up to ten, without zeros at the end
    Cents,    ///< always two
};

/// Returns a number as the calculator shows it: "1,234.5", "-0.3333333333", "1,234.50".
std::string Shown(const Exact& number, Decimals decimals);

} // namespace sumdesk
