#pragma once

#include <cstdint>

#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"

namespace mortgages {

// Keeps a mortgage's stored figures in step with its schedule. All of these throw on failure.

/// Copies a loan's fields and the split of its current payment to the current row, which the caller
/// writes. A row with a balloon keeps it, though a loan loaded from the row doesn't know of it, and
/// gets the balloon's amount.
void StoreLoan(const clsMortgage& mortgage, platform::Recordset& row);

/// A payoff is posted in cents, but a schedule is calculated to the last digit: if the last payment
/// leaves less than half a cent, the loan counts as paid off. Call it after ReCalc.
void SettleRemainder(clsMortgage& mortgage);

/// Recalculates a stored mortgage and brings it up to date, as closing its screen does: next due
/// date, balance and statuses follow from its current period again. One unit of work. Does nothing
/// if there is no such mortgage.
void RefreshMortgage(std::int32_t idMortgage);

enum class PayoffResult { Posted, NotFound };

/// Posts the final charge for the present balance, deletes all other open charges and refreshes the
/// open screens. One unit of work: if the mortgage can't be calculated nothing is deleted.
PayoffResult PostPayoff(std::int32_t idMortgage);

/// Returns whether a payoff was posted to the log after this row. The payoff charges the whole
/// balance, so that a charge from before it is no longer owed.
bool HasPayoffAfter(std::int32_t idMortgage, std::int32_t idMortgageLog);

} // namespace mortgages
