#pragma once

#include <cstdint>

#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"

namespace mortgages {

// What keeps the stored figures of a mortgage in step with its schedule. Failures are thrown.

/// Puts a loan's fields and the parts of its current payment into the current row, which the caller
/// writes. A row that was loaded keeps its balloon, of which a loan loaded from it knows nothing.
void StoreLoan(const clsMortgage& mortgage, platform::Recordset& row);

/// A payoff is posted in money, a schedule reckoned to the last digit: what the last payment leaves
/// of the loan for less than half a cent counts as paid with it. To be asked after ReCalc.
void SettleRemainder(clsMortgage& mortgage);

/// Reckons a stored mortgage anew and brings it up to date, as closing its screen does: the next
/// due date, the balance and the status words follow from its current period again. One unit of
/// work; nothing for a mortgage that isn't there.
void RefreshMortgage(std::int32_t idMortgage);

enum class PayoffResult { Posted, NotFound };

/// Posts the final charge, over the present balance, and removes all other open charges; tells the
/// open screens. One unit of work: without the mortgage's figures nothing is removed.
PayoffResult PostPayoff(std::int32_t idMortgage);

} // namespace mortgages
