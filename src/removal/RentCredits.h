#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace removal {

// Money that was paid ahead is an open row of negative amount in the rent log, the credit. The
// payment that brought it settles a row of the opposite amount, the credit's origin. The two add up
// to zero, so that every payment is still the sum of what it settles. The table RentCredit ties the
// credit, or the parts that it was split into, to the origin.
//
// A payment that was returned is tied to its reversal in the same way: it settles an origin of its
// whole amount, and the reversal settles the credit.
//
// Failures are thrown. Books of an earlier version have no credits; these functions change nothing
// in them.

/// Returns whether the books can hold credits.
bool HasCredits();

/// An origin of credit that a payment settles, and what became of the credit; no amount is
/// negative.
struct CreditOrigin {
    std::int32_t idRentLog = 0;
    platform::Currency amount;
    /// Still open.
    platform::Currency open;
};

/// Returns the origins that a payment settles, by id.
std::vector<CreditOrigin> OriginsOf(std::int32_t idTransaction);

/// Frees the credits of a payment that is deleted or returned. The credits that it took in are open
/// again. Of the credit that it brought, the open part is deleted, and the spent part is owed
/// again: the origin becomes an open charge of that amount. Returns true if there were any.
bool ReleaseCredits(std::int32_t idTransaction);

/// Forgets whatever ties a row of the rent log to a credit, before the row is deleted.
void ForgetCredit(std::int32_t idRentLog);

/// Forgets the credits of a lease and what it does with them, before the lease is deleted.
void ForgetLeaseCredits(std::int32_t idLease);

/// Returns the text that marks the description of a payment returned on a day: "Returned
/// 11/20/2026: ".
std::string ReturnMark(platform::Date day);

/// Returns a description for a payment that is saved again: with the mark that the stored one has.
std::string KeepReturnMark(std::int32_t idTransaction, const std::string& description);

/// Replaces the description of a transaction.
void SetDescription(std::int32_t idTransaction, const std::string& description);

/// Takes the mark off the payment that this transaction has returned, and off the payments from its
/// credit that the return has left empty, before the transaction is deleted; does nothing for other
/// transactions. Empty ones keep the mark if the returned payment was deleted before, or if another
/// payment of the lease was returned on that day: they may be the other's.
void UndoReturn(std::int32_t idReturn);

} // namespace removal
