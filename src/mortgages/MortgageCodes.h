#pragma once

#include <cstdint>
#include <string_view>

namespace mortgages {

/// Flags of a row of the mortgage log.
enum class LogFlags : std::int16_t {
    Ordinary = 0, ///< entered by hand
    BasePayment =
        1, ///< a period's principal and interest, or the payoff: paying it moves the period on
    Payment = 2,
    Pmi = 5, ///< mortgage insurance
    LateFee = 7,
    Escrow = 8,
};

// Values of the log's field `Category`.
inline constexpr std::string_view kCategoryPayment = "Mortgage Payment";
inline constexpr std::string_view kCategoryPayoff = "Mortgage Payoff";
inline constexpr std::string_view kCategoryPmi = "PMI Payment";
inline constexpr std::string_view kCategoryLate = "Late Payment";
inline constexpr std::string_view kCategoryEscrow = "Mortgage Escrow";
/// Principal paid once beyond the scheduled payments; the row's flags are Ordinary.
inline constexpr std::string_view kCategoryExtra = "Extra Principal";

} // namespace mortgages
