#pragma once

#include "core/DailyRun.h"

namespace leases {

/// Brings every lease up to date, in the order of the table. A lease that fails is reported to the
/// listener and left unchanged; the others are processed. Many leases are committed together, and
/// reported after that.
void UpdateLeases(core::RunListener& listener);

} // namespace leases
