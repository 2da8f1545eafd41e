#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/RunReason.h"
#include "leases/CreditPurse.h"
#include "leases/LeaseTerms.h"
#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

enum class ChargeKind : std::uint8_t { Rent, Subsidy, Discount, OneTimeFee, DailyFee };

/// A row that the walk adds to the rent log.
struct Charge {
    ChargeKind kind = ChargeKind::Rent;
    /// The day on which it is posted.
    platform::Date date;
    platform::Currency amount;
    /// The due date of the charge; for a fee, the due date from which its days were counted.
    platform::Date due;
};

TransactionClass ClassOf(ChargeKind kind);
RentFlags FlagsOf(ChargeKind kind);
std::string_view CategoryOf(ChargeKind kind);
std::string DescriptionOf(const Charge& charge);
core::Posting PostingOf(ChargeKind kind);
core::RunReason ReasonOf(const Charge& charge);

/// The work of a run besides catching the lease up to today.
enum class WalkMode {
    CatchUp,
    RollForward, ///< on to the next due date, discounts included, for a tenant who pays ahead
    Reprocess,   ///< again from a month before the next due date, whatever was charged since
};

/// The result of walking one lease. Nothing has been written yet.
struct LeaseWalk {
    /// The terms after the last day: status, start of the term, last day charged.
    LeaseTerms terms;
    std::vector<Charge> charges;
    /// The statuses that the lease passed through, in order; unit and tenant are updated for each.
    std::vector<std::string> statuses;
    /// Whether a new term began, with `terms.dateRenewed` as its first day.
    bool renewed = false;
    /// Charges that the tenant's credit settles, in the order of their days. Each period's rent
    /// that is settled whole has moved `terms.dateNextDue`.
    std::vector<CreditPayment> payments;
};

/// Returns whether a payment from credit settles the whole rent of a period, which moves the next
/// due date.
bool MovesNextDue(const Use& settled, std::span<const Charge> charges);

/// Returns whether the user has taken back the charge of this kind and day.
using IsTakenBack = std::function<bool(ChargeKind kind, platform::Date day)>;

/// Walks a lease day by day from the last day charged up to today (or to its next due date).
/// Charges of zero, and those that `taken` names, are left out; nothing else changes by that.
/// Charges are settled from `purse` on the day they are posted, so that a lease walked after a
/// closed month settles what it would have settled day by day. Throws FieldError for a value that
/// the walk needs and that can't be read.
LeaseWalk WalkLease(LeaseTerms terms, WalkMode mode, platform::Date today, CreditPurse purse = {},
                    const IsTakenBack& taken = {});

} // namespace leases
