#pragma once

#include <cstdint>
#include <vector>

#include "mortgages/MortgageLog.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/clsMortgage.h"

namespace mortgages {

// Principal paid once, beyond the scheduled payments. It has its own row in the log, settled by its
// payment, and enters the schedule in the period of that row. The base payment of the period asks
// only for extra principal that isn't booked this way. All of these throw on failure.

/// Returns the period on which a payment's extra principal is booked: the period of the last
/// selected base payment, or the current one if none is selected.
std::int16_t PeriodOfExtra(const MortgagePayment& payment);

/// Returns the extra principal booked on a period in rows of its own.
platform::Currency BookedExtra(std::int32_t idMortgage, std::int16_t period);

/// Returns why a payment's extra principal can't be booked; empty if it can.
std::string ExtraFault(const MortgagePayment& payment);

/// Books a payment's extra principal: its row in the log and its entry in the stored schedule. Does
/// nothing if it is zero.
void BookExtra(const MortgagePayment& payment, std::int32_t idTransaction);

/// Enters into a loan what the base payment of a period paid and what is booked on it.
void EnterExtra(clsMortgage& loan, std::int32_t idMortgage, std::int16_t period,
                platform::Currency payDown);

/// Subtracts booked extra principal from what new charges ask for.
void LeaveOutBooked(std::int32_t idMortgage, std::vector<Charge>& charges);

/// Loads a stored loan whose lists have an entry for `period`; returns false if there is none.
bool LoadWithEntry(clsMortgage& loan, std::int32_t idMortgage, std::int16_t period);

} // namespace mortgages
