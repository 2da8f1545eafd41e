#pragma once

#include <cstdint>
#include <string_view>

namespace leases {

/// What a row of the rent log, or a transaction against a lease, is about.
enum class RentClass : std::int16_t { Rent = 1, Subsidy = 2, Deposit = 3, OptionCredit = 4 };

/// Flags of a row of the rent log; of a deposit's transaction the last two.
enum class RentFlags : std::int16_t {
    Ordinary = 0,
    PeriodRent = 1, ///< the rent of one period: paying it moves the next due date on
    Payment = 2,
    DepositRefund = 3,
    DepositCharge = 4,
};

// Words that the ledger keeps in `Category`. The blank of the subsidy's belongs to it: ledgers hold
// it so, and reports compare with it.
inline constexpr std::string_view kCategoryRent = "Rent";
inline constexpr std::string_view kCategorySubsidy = "Rent Subsidy ";
inline constexpr std::string_view kCategoryDiscount = "Rent Discount";
inline constexpr std::string_view kCategoryLateFee = "Late Fee";
inline constexpr std::string_view kCategoryDeposit = "Deposit";
inline constexpr std::string_view kCategoryOptionCredit = "Option Credit";

} // namespace leases
