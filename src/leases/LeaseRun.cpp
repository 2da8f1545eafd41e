#include "leases/LeaseRun.h"

#include "core/BatchRun.h"
#include "core/RecordKinds.h"
#include "leases/Credits.h"
#include "leases/mLease.h"

namespace leases {

void UpdateLeases(core::RunListener& listener) {
    const CreditUse use = AnySettlesCharges() ? CreditUse::AsLeaseSays : CreditUse::None;
    const auto update = [use](platform::Recordset& lease) {
        return UpdateLease(lease, WalkMode::CatchUp, use);
    };
    core::UpdateEach(core::kLease, "SELECT * FROM LEASE", "IdLease", update, listener);
}

} // namespace leases
