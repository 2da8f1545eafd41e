#pragma once

#include <cstdint>
#include <vector>

#include "mortgages/MortgageLog.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/clsMortgage.h"

namespace mortgages {

// Principal that is paid once, beyond the scheduled payments. It has a row of its own in the log,
// which its payment settles, and enters the schedule in the period of that row. The base payment of
// the period asks only for extra principal that isn't booked like this. Failures are thrown.

/// Returns the period that a payment's extra principal is booked on: the one of the last base
/// payment selected, or the current one if none is.
std::int16_t PeriodOfExtra(const MortgagePayment& payment);

/// Returns what is booked on a period in rows of their own.
platform::Currency BookedExtra(std::int32_t idMortgage, std::int16_t period);

/// Returns why a payment's extra principal can't be booked; empty if it can.
std::string ExtraFault(const MortgagePayment& payment);

/// Books a payment's extra principal: its row in the log and its entry in the stored schedule. Does
/// nothing without any.
void BookExtra(const MortgagePayment& payment, std::int32_t idTransaction);

/// Enters what the base payment of a period paid, and what is booked on it, into a loan.
void EnterExtra(clsMortgage& loan, std::int32_t idMortgage, std::int16_t period,
                platform::Currency payDown);

/// Takes what is booked already out of the extra principal that new charges ask for.
void LeaveOutBooked(std::int32_t idMortgage, std::vector<Charge>& charges);

/// Loads a stored loan whose lists have an entry for `period`; false if there is none.
bool LoadWithEntry(clsMortgage& loan, std::int32_t idMortgage, std::int16_t period);

} // namespace mortgages
