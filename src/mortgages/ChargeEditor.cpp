#include "mortgages/ChargeEditor.h"

#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/RecordNotices.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/system/Clock.h"

namespace mortgages {

namespace {

MortgageLogEntry EntryOf(platform::Recordset& row) {
    MortgageLogEntry entry;
    entry.idMortgage = IdOf(row["IdMortgage"]);
    entry.idTransaction = IdOf(row["IdTransaction"]);
    entry.period = ShortOf(row["Period"]);
    entry.datePosted = DateOf(row["DatePosted"]);
    entry.category = TextOf(row["Category"]);
    entry.principal = MoneyOf(row["Principal"]);
    entry.payDown = MoneyOf(row["PayDown"]);
    entry.interest = MoneyOf(row["Interest"]);
    entry.other = MoneyOf(row["Other"]);
    entry.description = TextOf(row["Description"]);
    entry.flags = LogFlags{ShortOf(row["Flags"])};
    return entry;
}

void CheckUnchanged(std::int32_t idMortgageLog, const MortgageLogEntry& read) {
    platform::Recordset row =
        core::Read("SELECT * FROM MortgageLog WHERE IdMortgageLog = ?", {idMortgageLog});
    if (row.Eof()) {
        throw platform::ConflictError("This charge has been deleted. Nothing was saved.");
    }
    const MortgageLogEntry now = EntryOf(row);
    if (now == read) return;
    throw platform::ConflictError(now.idTransaction == read.idTransaction
                                      ? "This charge has been changed. Nothing was saved."
                                      : "This charge has been paid, or its payment has been "
                                        "deleted. Nothing was saved.");
}

} // namespace

MortgageLogEntry NewCharge(std::int32_t idMortgage) {
    MortgageLogEntry entry;
    entry.idMortgage = idMortgage;
    entry.datePosted = platform::Today();
    entry.category = kChargeCategories.back();
    return entry;
}

bool IsExtraPrincipal(const MortgageLogEntry& entry) {
    return entry.flags == LogFlags::Ordinary && entry.category == kCategoryExtra;
}

bool KeepsSplit(const MortgageLogEntry& entry) {
    return entry.flags == LogFlags::BasePayment || IsExtraPrincipal(entry);
}

bool ReadCharge(std::int32_t idMortgageLog, MortgageLogEntry& entry) {
    platform::Recordset row;
    const auto count = core::OpenRecordset(row, "SELECT * FROM MortgageLog WHERE IdMortgageLog = ?",
                                           platform::CursorMode::ReadOnly, {idMortgageLog});
    if (!core::OneRecordFound(count)) return false;
    entry = EntryOf(row);
    return true;
}

std::int32_t SaveCharge(const MortgageLogEntry& entry, const MortgageLogEntry& read,
                        std::int32_t idMortgageLog) {
    platform::UnitOfWork unit(core::App().Connection);
    if (idMortgageLog != 0) {
        CheckUnchanged(idMortgageLog, read);
    } else if (entry.idMortgage != 0 && !core::RecordExists(core::kMortgage, entry.idMortgage)) {
        throw platform::ConflictError("The mortgage has been deleted. Nothing was saved.");
    }
    const std::int32_t id = WriteMortgageLog(entry, idMortgageLog);
    unit.Commit();
    core::NotifyAll(core::kMortgageLog, core::kRecordsChanged, 0);
    return id;
}

} // namespace mortgages
