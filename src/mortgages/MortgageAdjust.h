#pragma once

#include <string>
#include <vector>

#include "platform/values/Currency.h"

namespace mortgages {

// What is wrong with an adjustment of a running mortgage, a line each. Rates are percent.

/// A lender's balance (and rate), against the balance known until now.
std::vector<std::string> BalanceErrors(platform::Currency newBalance, platform::Currency oldBalance,
                                       double rate);

/// A new rate from a period on.
std::vector<std::string> RateErrors(int period, double rate);

} // namespace mortgages
