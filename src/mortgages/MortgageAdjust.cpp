#include "mortgages/MortgageAdjust.h"

namespace mortgages {

namespace {

constexpr const char* kNegativeRate = "Interest rate cannot be a negative value.";

} // namespace

std::vector<std::string> BalanceErrors(platform::Currency newBalance, platform::Currency oldBalance,
                                       double rate) {
    std::vector<std::string> errors;
    if (newBalance >= oldBalance) {
        errors.emplace_back("New balance must be lower than previous balance.");
    }
    if (rate < 0) errors.emplace_back(kNegativeRate);
    return errors;
}

std::vector<std::string> RateErrors(int period, double rate) {
    std::vector<std::string> errors;
    if (rate < 0) errors.emplace_back(kNegativeRate);
    if (period <= 0) errors.emplace_back("Period number cannot be zero (or less than).");
    return errors;
}

} // namespace mortgages
