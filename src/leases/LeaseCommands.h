#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/values/Date.h"

namespace leases {

/// The commands by which the user changes a lease by hand.
enum class LeaseCommand {
    GiveNotice,
    BreakLease,
    CancelNotice,
    RenewLease,
    Reprocess,
    RollForward
};

/// Asks the user to confirm a command; returns true for Yes.
bool AskWhether(LeaseCommand command);

/// Runs a command on a stored lease. `noticeDays` is the tenant's period of notice. One unit of
/// work. Throws on failure. Does nothing if the lease doesn't exist.
void RunCommand(LeaseCommand command, std::int32_t idLease, int noticeDays);

/// The work of the lease commands once the user has agreed: sets the status and the vacating date
/// (unset clears it), lets the calendar determine today's true status, updates unit and tenant, and
/// broadcasts the changes. "Pending" means "whatever the dates say". One unit of work. Throws on
/// failure. Does nothing if the lease doesn't exist.
void ChangeStatus(std::int32_t idLease, std::string_view newStatus, platform::Date vacating);

} // namespace leases
