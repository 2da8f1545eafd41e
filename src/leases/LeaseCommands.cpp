#include "leases/LeaseCommands.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/mLease.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace leases {

void ChangeStatus(std::int32_t idLease, std::string_view newStatus, platform::Date vacating) {
    platform::Recordset row;
    row.Open(core::App().Connection, "SELECT * FROM Lease WHERE IdLease = ?",
             platform::CursorMode::Updatable, {idLease});
    if (row.Eof()) return;

    platform::UnitOfWork unit(core::App().Connection);
    row["Status"].Set(newStatus);
    row["DateVacating"].Set(vacating.ToText());
    SetLeaseStatus(row, platform::Today(), StatusChange::Force);
    SetRentStatus(row);
    row.Update();
    unit.Commit();
    core::NotifyAll(core::kLease, core::kRecordsChanged, 0);
}

} // namespace leases
