#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// The effects of paid rents on a lease, besides those on its ledger.
struct DueMove {
    /// The next due date as it is; unset if the lease has none.
    platform::Date from;
    platform::Date to;
    /// The credit that one of the periods earns towards the purchase; zero if the lease has no
    /// option.
    platform::Currency optionCredit;
};

/// Reads what paying the rent of so many periods will do. Returns nothing if the lease was
/// deleted.
std::optional<DueMove> ReadDueMove(std::int32_t idLease, int periods);

/// Steps a next due date back by so many periods of a lease, as far as that can be told: on the
/// way, the day may have been shortened to a month's last day. `oldest` is the day of the oldest
/// rent among them; it is the result if paying leads from it to `due`.
platform::Date DueBefore(std::string_view termType, platform::Date due, int periods,
                         platform::Date oldest);

} // namespace leases
