#pragma once

#include "core/DailyRun.h"

namespace leases {

/// Brings every lease up to date, in the order of the table. A lease that fails is told to the
/// listener and left as it was; the others go on. Many leases are kept at a time, and told once
/// they are.
void UpdateLeases(core::RunListener& listener);

} // namespace leases
