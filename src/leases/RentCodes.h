#pragma once

#include <cstdint>
#include <string_view>

#include "core/Codes.h"

namespace leases {

/// The class of a row in the rent log, or of a transaction of a lease: Rent, Subsidy, Deposit or
/// OptionCredit.
using core::TransactionClass;

/// Flags of a row in the rent log; a deposit's transaction uses the last two.
enum class RentFlags : std::int16_t {
    Ordinary = 0,
    PeriodRent = 1, ///< the rent of one period: paying it moves the next due date on
    Payment = 2,
    DepositRefund = 3,
    DepositCharge = 4,
};

// Values of the ledger's field `Category`. The subsidy's trailing blank is part of it: stored
// ledgers have it, and reports compare with it.
inline constexpr std::string_view kCategoryRent = "Rent";
inline constexpr std::string_view kCategorySubsidy = "Rent Subsidy ";
inline constexpr std::string_view kCategoryDiscount = "Rent Discount";
inline constexpr std::string_view kCategoryLateFee = "Late Fee";
inline constexpr std::string_view kCategoryDeposit = "Deposit";
inline constexpr std::string_view kCategoryOptionCredit = "Option Credit";

} // namespace leases
