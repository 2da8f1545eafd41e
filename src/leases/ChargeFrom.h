#pragma once

#include "leases/LeaseTerms.h"
#include "leases/PreviewRow.h"
#include "platform/values/Date.h"

namespace leases {

// A lease that is entered long after it began would be charged rent and late fees for all the time
// before the landlord kept these books. Its next due date decides from when it is charged.

/// Returns the first day of these books if a lease that was never charged would be charged for days
/// before it; that is the day to charge it from. Unset if there is nothing to ask: the books don't
/// say since when they are kept, nothing falls due before that day, or the terms can't be walked.
platform::Date ProposedChargeFrom(const LeaseTerms& terms);

/// Returns the lease's first due date on or after `from`, counted on from its next due date as its
/// walk counts. With it as the next due date nothing is charged before `from`. Throws OverflowError
/// if the calendar ends before it.
platform::Date FirstDueFrom(const LeaseTerms& terms, platform::Date from);

/// Returns the rows that bringing the lease up to today will post if it is next due on `nextDue`,
/// oldest first. Nothing is written. Throws FieldError if the terms can't be walked, OverflowError
/// if the calendar ends before a fee's days are over.
PreviewRows PreviewCharges(LeaseTerms terms, platform::Date nextDue);

} // namespace leases
