#pragma once

#include <cstdint>
#include <vector>

#include "books/PostTransaction.h"
#include "core/DailyRun.h"
#include "leases/LeaseWalk.h"
#include "platform/database/Recordset.h"
#include "platform/values/Date.h"

namespace leases {

// The calendar-driven life of a lease. The operations on a row work on an open, updatable row of
// `Lease`. They throw on failure, and what they wrote is rolled back.

using PostedRows = std::vector<core::PostedRow>;

/// Whether a run settles new charges from credit. None saves a run of many leases the lookup for
/// each, if it knows that no lease settles its charges so.
enum class CreditUse { AsLeaseSays, None };

/// Brings a lease up to date: walks it by the calendar, posts its charges, settles them from credit
/// if `use` and the lease say so, sets unit and tenant, computes balances and rent status, writes
/// the row and notifies the screens. One unit of work. Returns what was posted. Throws
/// ConflictError if the row was written since it was read.
PostedRows UpdateLease(platform::Recordset& row, WalkMode mode,
                       CreditUse use = CreditUse::AsLeaseSays);

/// Does the same for the lease of this id, and reads it again if another program writes it in
/// between. Does nothing for id 0 or a lease that doesn't exist.
PostedRows UpdateLeaseById(std::int32_t idLease, WalkMode mode);

enum class StatusChange { IfDifferent, Force };

/// Sets the lease's status on `onDate`, and unit and tenant with it; returns true if anything
/// changed. The caller writes the row.
bool SetLeaseStatus(platform::Recordset& row, platform::Date onDate, StatusChange change);

/// Sets the lease's rent status as of today. If a field can't be read the old status stays.
void SetRentStatus(platform::Recordset& row);

enum class OptionCredit { None, Add };
enum class Broadcast { No, Yes };

/// Moves the next due date by one period, since a period's rent was paid; a lease with a purchase
/// option earns its credit. Does nothing if the lease doesn't exist.
void AdvanceNextDue(std::int32_t idLease, OptionCredit credit, Broadcast broadcast);

/// Returns the tenant, unit and building of a lease; 0 for any that doesn't exist.
books::References GetLeaseLinks(std::int32_t idLease);

} // namespace leases
