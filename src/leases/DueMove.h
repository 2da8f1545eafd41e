#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// The effect of paid rents on a lease beside the ledger of its charges.
struct DueMove {
    /// The next due date as it is; unset if the lease has none.
    platform::Date from;
    platform::Date to;
    /// What one of the periods earns towards the purchase, zero without an option.
    platform::Currency optionCredit;
};

/// Reads what paying the rent of so many periods will do. Returns nothing if the lease was
/// deleted.
std::optional<DueMove> ReadDueMove(std::int32_t idLease, int periods);

/// Steps a next due date back over so many periods of a lease, as far as they can be told: a
/// month's last day may have been shortened on the way. `oldest` is the day of the oldest rent
/// among them, which is the answer if paying leads from it to `due`.
platform::Date DueBefore(std::string_view termType, platform::Date due, int periods,
                         platform::Date oldest);

} // namespace leases
