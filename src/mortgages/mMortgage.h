#pragma once

#include <cstdint>
#include <vector>

#include "mortgages/MortgageWalk.h"
#include "platform/database/Recordset.h"

namespace mortgages {

// The calendar-driven life of a mortgage. The operations on a row work on an open, updatable row of
// `Mortgage`. Failures are thrown; what one of them wrote until then is taken back.

/// Brings a mortgage up to date: walks it by the calendar, posts its charges, sets its status words
/// and writes the row. The next due date stays: it moves with payments alone. One unit of work.
/// Answers the charges posted.
std::vector<Charge> UpdateMortgage(platform::Recordset& row, RunMode mode);

/// The same for the mortgage of this id; nothing for one that isn't there.
void UpdateMortgageById(std::int32_t idMortgage, RunMode mode);

/// Sets `Status` by the balance, and `PmtStatus` by today and the next due date; a row without one
/// keeps the word it has. The caller writes the row.
void SetMortgageStatus(platform::Recordset& row);

} // namespace mortgages
