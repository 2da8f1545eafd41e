#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "leases/LeaseTerms.h"
#include "leases/RentCodes.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

enum class ChargeKind : std::uint8_t { Rent, Subsidy, Discount, OneTimeFee, DailyFee };

/// One row that the walk puts into the rent log.
struct Charge {
    ChargeKind kind = ChargeKind::Rent;
    /// The day it is posted on.
    platform::Date date;
    platform::Currency amount;
    /// The due date that it is about.
    platform::Date due;
};

RentClass ClassOf(ChargeKind kind);
RentFlags FlagsOf(ChargeKind kind);
std::string_view CategoryOf(ChargeKind kind);
std::string DescriptionOf(const Charge& charge);

/// How a run treats the lease beyond the plain catching up to today.
enum class WalkMode {
    CatchUp,
    RollForward, ///< on to the next due date, discounts included, for a tenant who pays ahead
    Reprocess,   ///< again from a month before the next due date, whatever was charged since
};

/// What the walk of one lease came to. Nothing is written yet.
struct LeaseWalk {
    /// The terms after the last day: status, start of the term, last day charged.
    LeaseTerms terms;
    std::vector<Charge> charges;
    /// The statuses that the lease went through, in order; unit and tenant follow each.
    std::vector<std::string> statuses;
    /// A new term began; `terms.dateRenewed` is its first day.
    bool renewed = false;
};

/// Walks a lease day by day from the last day charged up to today (or to its next due date).
/// Charges of zero are left out. A FieldError for a value that the walk needs and that can't be
/// read.
LeaseWalk WalkLease(LeaseTerms terms, WalkMode mode, platform::Date today);

} // namespace leases
