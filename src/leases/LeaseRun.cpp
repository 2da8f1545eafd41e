#include "leases/LeaseRun.h"

#include <vector>

#include "core/BatchRun.h"
#include "core/RecordKinds.h"
#include "leases/mLease.h"

namespace leases {

void UpdateLeases(core::RunListener& listener) {
    const auto update = [](platform::Recordset& lease) {
        std::vector<core::PostedRow> rows;
        for (const Charge& charge : UpdateLease(lease, WalkMode::CatchUp))
            rows.push_back({charge.date, CategoryOf(charge.kind), charge.amount});
        return rows;
    };
    core::UpdateEach(core::kLease, "SELECT * FROM LEASE", "IdLease", update, listener);
}

} // namespace leases
