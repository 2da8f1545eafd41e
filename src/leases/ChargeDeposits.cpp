#include "leases/ChargeDeposits.h"

#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/Rows.h"
#include "leases/RentLog.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Recordset;

void ChargeDeposits(std::int32_t idLease, std::int32_t idUnit) {
    Recordset templates = core::Read(
        "SELECT * FROM Deposit WHERE (IsGlobal = True) OR (IdBuilding = ?) OR (IdUnit = ?)",
        {core::GetUnitBuilding(idUnit), idUnit});
    platform::UnitOfWork unit(core::App().Connection);
    for (; !templates.Eof(); templates.MoveNext()) {
        WriteRentLog({.idLease = idLease,
                      .datePosted = platform::Today(),
                      .rentClass = TransactionClass::Deposit,
                      .category = std::string(kCategoryDeposit),
                      .amount = MoneyOf(templates["Amount"]),
                      .description = TextOf(templates["Description"])});
    }
    unit.Commit();
}

} // namespace leases
