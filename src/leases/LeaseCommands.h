#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/values/Date.h"

namespace leases {

/// What a person does to a lease by hand.
enum class LeaseCommand {
    GiveNotice,
    BreakLease,
    CancelNotice,
    RenewLease,
    Reprocess,
    RollForward
};

/// Asks whether it is meant; true for Yes.
bool AskWhether(LeaseCommand command);

/// Does it to a stored lease. `noticeDays` is the time that a tenant has who gives notice. One unit
/// of work; failures are thrown. Nothing for a lease that isn't there.
void RunCommand(LeaseCommand command, std::int32_t idLease, int noticeDays);

/// What the commands of a lease do once the user has agreed: sets its status and the vacating date
/// (unset clears it), lets the calendar work out the true status of today, makes unit and tenant
/// follow, and tells the open screens. "Pending" stands for "whatever the dates say". One unit of
/// work; failures are thrown. Nothing for a lease that isn't there.
void ChangeStatus(std::int32_t idLease, std::string_view newStatus, platform::Date vacating);

} // namespace leases
