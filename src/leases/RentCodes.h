#pragma once

#include <string_view>

#include "core/Codes.h"

namespace leases {

/// The class of a row in the rent log, or of a transaction of a lease: Rent, Subsidy, Deposit or
/// OptionCredit.
using core::TransactionClass;

using core::RentFlags;

// Values of the ledger's field `Category`. The subsidy's trailing blank is part of it: stored
// ledgers have it, and reports compare with it.
inline constexpr std::string_view kCategoryRent = "Rent";
inline constexpr std::string_view kCategorySubsidy = "Rent Subsidy ";
inline constexpr std::string_view kCategoryDiscount = "Rent Discount";
inline constexpr std::string_view kCategoryLateFee = "Late Fee";
inline constexpr std::string_view kCategoryDeposit = "Deposit";
inline constexpr std::string_view kCategoryOptionCredit = "Option Credit";

} // namespace leases
