#pragma once

#include <cstdint>

#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"

namespace mortgages {

// What keeps the stored figures of a mortgage in step with its schedule. Failures are thrown.

/// Puts a loan's fields and the parts of its current payment into the current row, which the caller
/// writes. A row with a balloon keeps it, though a loan loaded from the row doesn't know of it, and
/// gets the balloon's amount.
void StoreLoan(const clsMortgage& mortgage, platform::Recordset& row);

/// A payoff is posted in money, a schedule is calculated to the last digit: if the last payment
/// leaves less than half a cent of the loan, that counts as paid with it. Call it after ReCalc.
void SettleRemainder(clsMortgage& mortgage);

/// Recalculates a stored mortgage and brings it up to date, as closing its screen does: the next
/// due date, the balance and the statuses follow from its current period again. One unit of work.
/// Does nothing if there is no such mortgage.
void RefreshMortgage(std::int32_t idMortgage);

enum class PayoffResult { Posted, NotFound };

/// Posts the final charge, over the present balance, deletes all other open charges and refreshes
/// the open screens. One unit of work: without the mortgage's figures nothing is deleted.
PayoffResult PostPayoff(std::int32_t idMortgage);

} // namespace mortgages
