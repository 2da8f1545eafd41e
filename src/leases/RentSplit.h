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

/// One charge that is made two, so that a part of it can be paid.
struct RentSplit {
    std::int32_t idRentLog = 0;
    RentLogEntry charge;
    std::array<SplitPart, 2> parts;
    /// Which part stays the period's rent, where the charge is one: paying it moves the next due
    /// date.
    std::size_t rentPart = 0;

    bool IsPeriodRent() const { return charge.flags == RentFlags::PeriodRent; }
    /// What the other part is to be, if this one is to be `part`.
    platform::Currency Rest(platform::Currency part) const { return charge.amount - part; }
    /// True if the part that stays the period's rent is zero: then no payment of the parts moves
    /// the next due date.
    bool LosesRent() const;
    /// What the parts are short of the charge; negative when they are more.
    platform::Currency Missing() const;
};

std::string_view SplitCaption(RentClass rentClass);
std::vector<std::string> SplitCategories(RentClass rentClass);

/// A charge before it is split: the first part is as the charge, the second its deferred twin, the
/// amounts still to be given. Nothing when it isn't there. Failures are thrown.
std::optional<RentSplit> ReadSplit(std::int32_t idRentLog);

/// Puts the parts in the place of the charge, a part of zero not at all. One unit of work. Throws
/// ConflictError if the charge was changed or deleted since it was read. Returns the ids of the
/// parts, 0 for one that was not written.
std::array<std::int32_t, 2> SaveSplit(const RentSplit& split);

} // namespace leases
