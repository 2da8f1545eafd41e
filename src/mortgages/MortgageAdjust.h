#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mortgages/clsMortgage.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace mortgages {

// Manual adjustments of a running mortgage, which take effect from a period on and leave earlier
// periods as they are. Rates are fractions.

/// A new rate from a period on.
struct RateFrom {
    int period = 0;
    double rate = 0;
};
/// The balance and rate stated by the lender as of before the payment due on a date.
struct LenderBalance {
    platform::Date day;
    platform::Currency balance;
    double rate = 0;
};
/// Extra principal with every payment from a period on, replacing the monthly extra principal.
struct ExtraFrom {
    int period = 0;
    platform::Currency amount;
};
/// Removes the extra principal of one period from the schedule.
struct WithoutExtra {
    int period = 0;
};
/// Moves the current period forward, or back for a negative count.
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
