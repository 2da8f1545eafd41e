#pragma once

#include <string>

#include "leases/LeaseTerms.h"
#include "platform/values/Date.h"

namespace leases {

/// What one day's test of a lease's status changed.
struct StatusStep {
    /// The status was set (again, where that was forced), so unit and tenant follow it.
    bool statusSet = false;
    /// The lease began a new term; `LeaseTerms::dateRenewed` says when.
    bool renewed = false;

    bool Changed() const { return statusSet || renewed; }
};

/// Brings `terms.status` and `terms.dateRenewed` to where they stand on `onDate`: a pending lease
/// begins, a term ends by its option, a notice runs out. One term at most is renewed a day. With
/// `force` the status counts as set even if it stays. A FieldError for a date or term that the
/// status needs and that can't be read; the terms are then as before.
StatusStep StepLeaseStatus(LeaseTerms& terms, platform::Date onDate, bool force);

/// Whether a lease of this status word is charged.
bool IsCharged(std::string_view word);

/// Whether a lease of this status word is over: its unit free, its tenant archived.
bool IsOver(std::string_view word);

} // namespace leases
