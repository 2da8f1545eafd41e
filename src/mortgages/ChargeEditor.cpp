#include "mortgages/ChargeEditor.h"

#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/RecordNotices.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"

namespace mortgages {

MortgageLogEntry NewCharge(std::int32_t idMortgage) {
    MortgageLogEntry entry;
    entry.idMortgage = idMortgage;
    entry.datePosted = platform::Today();
    entry.category = kChargeCategories.back();
    return entry;
}

bool ReadCharge(std::int32_t idMortgageLog, MortgageLogEntry& entry) {
    platform::Recordset row;
    const auto count = core::OpenRecordset(row, "SELECT * FROM MortgageLog WHERE IdMortgageLog = ?",
                                           core::Access::ReadOnly, {idMortgageLog});
    if (!core::OneRecordFound(count)) return false;
    entry.idMortgage = IdOf(row["IdMortgage"]);
    entry.idTransaction = IdOf(row["IdTransaction"]);
    entry.period = CountOf(row["Period"]);
    entry.datePosted = DateOf(row["DatePosted"]);
    entry.category = TextOf(row["Category"]);
    entry.principal = MoneyOf(row["Principal"]);
    entry.payDown = MoneyOf(row["PayDown"]);
    entry.interest = MoneyOf(row["Interest"]);
    entry.other = MoneyOf(row["Other"]);
    entry.description = TextOf(row["Description"]);
    entry.flags = LogFlags{CountOf(row["Flags"])};
    return true;
}

std::int32_t SaveCharge(const MortgageLogEntry& entry, std::int32_t idMortgageLog) {
    const std::int32_t id = WriteMortgageLog(entry, idMortgageLog);
    core::NotifyAll(core::kMortgageLog, core::kRecordsChanged, 0);
    return id;
}

} // namespace mortgages
