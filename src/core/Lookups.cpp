#include "core/Lookups.h"

#include <exception>

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Session.h"

namespace core {

namespace {

std::int32_t LookUpId(std::string_view sql, std::int32_t id) {
    if (id == 0) return 0;
    const auto found = LookUp(sql, {id});
    return found ? found->AsLong() : 0;
}

} // namespace

std::int32_t GetMortgageBuilding(std::int32_t idMortgage) {
    return LookUpId("SELECT IdBuilding FROM Mortgage WHERE IdMortgage = ?", idMortgage);
}

std::int32_t GetLeaseUnit(std::int32_t idLease) {
    return LookUpId("SELECT IdUnit FROM Lease WHERE IdLease = ?", idLease);
}

std::int32_t GetUnitBuilding(std::int32_t idUnit) {
    return LookUpId("SELECT IdBuilding FROM Unit WHERE IdUnit = ?", idUnit);
}

bool GetLeaseParties(std::int32_t idLease, std::int32_t& idUnit, std::int32_t& idTenant) {
    platform::Recordset rows;
    if (OpenRecordset(rows, "SELECT IdUnit, IdTenant FROM Lease WHERE IdLease = ?",
                      platform::CursorMode::ReadOnly, {idLease}) < 1) {
        return false;
    }
    try {
        const std::int32_t unit = rows["IdUnit"].AsLong();
        idTenant = rows["IdTenant"].AsLong();
        idUnit = unit;
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

std::string GetDefaultCar() {
    const auto car = LookUp("SELECT DefaultCar FROM Configuration", {});
    return car ? car->AsText() : std::string();
}

void SetUnitStatus(std::int32_t idUnit, std::string_view status) {
    ExecuteSql("UPDATE Unit SET Status = ? WHERE IdUnit = ?", {status, idUnit});
    NotifyAll(kUnit, kRecordsChanged, 0);
}

void SetTenantStatus(std::int32_t idTenant, std::string_view status) {
    ExecuteSql("UPDATE Tenant SET Status = ? WHERE IdTenant = ?", {status, idTenant});
    NotifyAll(kTenant, kRecordsChanged, 0);
}

} // namespace core
