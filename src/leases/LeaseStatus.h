#pragma once

#include <string>

#include "leases/LeaseTerms.h"
#include "platform/values/Date.h"

namespace leases {

/// The changes of one day's test of a lease's status.
struct StatusStep {
    /// Whether the status was set, even to the same value, so that unit and tenant are updated.
    bool statusSet = false;
    /// Whether a new term began, on `LeaseTerms::dateRenewed`.
    bool renewed = false;

    bool Changed() const { return statusSet || renewed; }
};

/// Updates `terms.status` and `terms.dateRenewed` to `onDate`: a pending lease begins, a term ends
/// by its option, a notice runs out. At most one term is renewed per day. With `force` the status
/// counts as set even if it stays the same. Throws FieldError if the status needs a date or term
/// that can't be read; the terms are then unchanged.
StatusStep StepLeaseStatus(LeaseTerms& terms, platform::Date onDate, bool force);

/// Returns whether leases of this status are charged.
bool IsCharged(std::string_view status);

/// Returns whether a lease of this status is over: its unit free, its tenant archived.
bool IsOver(std::string_view status);

} // namespace leases
