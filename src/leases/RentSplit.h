#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "leases/RentLog.h"

namespace leases {

struct SplitPart {
    platform::Date date;
    std::string category;
    platform::Currency amount;
    std::string description;
};

/// A charge that is replaced by two, so that part of it can be paid.
struct RentSplit {
    std::int32_t idRentLog = 0;
    RentLogEntry charge;
    std::array<SplitPart, 2> parts;
    /// The part that stays the period's rent, if the charge is one: paying it moves the next due
    /// date.
    std::size_t rentPart = 0;

    bool IsPeriodRent() const { return charge.flags == RentFlags::PeriodRent; }
    /// Returns the amount of the other part if one part is to be `part`.
    platform::Currency Rest(platform::Currency part) const { return charge.amount - part; }
    /// Returns true if the part that stays the period's rent is zero: then no payment of the parts
    /// moves the next due date.
    bool LosesRent() const;
    /// Returns what the parts lack to make up the charge; negative if they exceed it.
    platform::Currency Missing() const;
};

std::string_view SplitCaption(TransactionClass rentClass);
std::vector<std::string> SplitCategories(TransactionClass rentClass);

/// Returns a charge to be split: the first part is like the charge, the second its deferred twin,
/// with the amounts still to be entered. Returns nothing if it doesn't exist. Throws on failure.
std::optional<RentSplit> ReadSplit(std::int32_t idRentLog);

/// Replaces the charge by its parts; a part of zero is left out. One unit of work. Throws
/// ConflictError if the charge was changed or deleted since it was read. Returns the ids of the
/// parts, 0 for one that was left out.
std::array<std::int32_t, 2> SaveSplit(const RentSplit& split);

} // namespace leases
