#pragma once

#include <cstdint>
#include <vector>

#include "core/DailyRun.h"
#include "mortgages/MortgageWalk.h"
#include "platform/database/Recordset.h"

namespace mortgages {

// The calendar-driven life of a mortgage. The operations on a row work on an open, updatable row of
// `Mortgage`. They throw on failure, and what they wrote is rolled back.

/// Brings a mortgage up to date: walks it by the calendar, posts its charges, sets its statuses and
/// writes the row. The next due date stays, since only payments move it. One unit of work. Returns
/// what was posted.
std::vector<core::PostedRow> UpdateMortgage(platform::Recordset& row, RunMode mode);

/// Does the same for the mortgage of this id; does nothing if it doesn't exist.
void UpdateMortgageById(std::int32_t idMortgage, RunMode mode);

/// Sets `Status` by the balance, and `PmtStatus` by today and the next due date; if there is none,
/// PmtStatus stays. The caller writes the row.
void SetMortgageStatus(platform::Recordset& row);

} // namespace mortgages
