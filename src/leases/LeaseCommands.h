#pragma once

#include <cstdint>
#include <string_view>

#include "platform/values/Date.h"

namespace leases {

/// What the commands of a lease do once the user has agreed: sets its status and the vacating date
/// (unset clears it), lets the calendar work out the true status of today, makes unit and tenant
/// follow, and tells the open screens. "Pending" stands for "whatever the dates say". One unit of
/// work; failures are thrown. Nothing for a lease that isn't there.
void ChangeStatus(std::int32_t idLease, std::string_view newStatus, platform::Date vacating);

} // namespace leases
