#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mortgages/clsMortgage.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

// Adjustments of a running mortgage: changes made by hand that act from a period on, so that what
// was paid before stays. Rates are fractions.

/// A new rate from a period on.
struct RateFrom {
    int period = 0;
    double rate = 0;
};
/// The balance, and the rate, that the lender states before the payment due on a day.
struct LenderBalance {
    platform::Date day;
    platform::Currency balance;
    double rate = 0;
};
/// Extra principal with every payment from a period on, in place of what was paid every month.
struct ExtraFrom {
    int period = 0;
    platform::Currency amount;
};
/// Takes the extra principal of one period out of the schedule.
struct WithoutExtra {
    int period = 0;
};
/// Moves the current period on, or back for a negative count.
struct MovePeriod {
    int periods = 0;
};
using Adjustment = std::variant<RateFrom, LenderBalance, ExtraFrom, WithoutExtra, MovePeriod>;

/// Makes an adjustment and recalculates the schedule. Throws Error if it can't be calculated.
void Adjust(clsMortgage& loan, const Adjustment& adjustment);

/// Returns why an adjustment would be refused or would change nothing, a line each.
std::vector<std::string> AdjustErrors(const clsMortgage& loan, const RateFrom& adjustment);
std::vector<std::string> AdjustErrors(const clsMortgage& loan, const LenderBalance& adjustment);
std::vector<std::string> AdjustErrors(const clsMortgage& loan, const ExtraFrom& adjustment);

/// An entry of extra principal in the schedule of a loan.
struct ExtraEntry {
    int period = 0;
    platform::Date due;
    platform::Currency amount;
};

/// Returns the periods with extra principal of their own, in order.
std::vector<ExtraEntry> ExtraEntries(const clsMortgage& loan);

} // namespace mortgages
