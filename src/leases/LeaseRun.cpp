#include "leases/LeaseRun.h"

#include "core/BatchRun.h"
#include "core/RecordKinds.h"
#include "leases/mLease.h"

namespace leases {

void UpdateLeases(core::RunListener& listener) {
    const auto update = [](platform::Recordset& lease) {
        return UpdateLease(lease, WalkMode::CatchUp);
    };
    core::UpdateEach(core::kLease, "SELECT * FROM LEASE", "IdLease", update, listener);
}

} // namespace leases
