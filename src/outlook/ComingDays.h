#pragma once

#include "outlook/Forecast.h"

namespace outlook {

/// Adds what will happen in the session's books until the forecast's last day without anything
/// being posted: leases that begin, renew and end, events that only remind, insurance renewals and
/// association payments of buildings, escrow reviews of mortgages. Call it before the run, which
/// moves the leases and events on.
///
/// A lease or event that the run reports as faulty is left out here; a date of another record that
/// isn't valid is added to the faults.
void AddComingDays(Forecast& forecast);

/// Adds the days on which leases begin, renew or end by themselves, until the forecast's last day.
void AddLeaseDays(Forecast& forecast);
/// Adds the days of the enabled scheduled events that raise an alert and post nothing.
void AddReminders(Forecast& forecast);
/// Adds the next dates that buildings and mortgages hold, from today on.
void AddRenewals(Forecast& forecast);

} // namespace outlook
