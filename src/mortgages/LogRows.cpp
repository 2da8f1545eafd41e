#include "mortgages/LogRows.h"

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/dialogs/Dialogs.h"
#include "removal/DeleteRecord.h"

namespace mortgages {

using platform::Recordset;

namespace {

LogRow RowOf(Recordset& rows) {
    LogRow row;
    row.idMortgageLog = rows["IdMortgageLog"].AsLong();
    row.entry.datePosted = rows["DatePosted"].AsDate();
    row.entry.category = TextOf(rows["Category"]);
    row.entry.description = TextOf(rows["Description"]);
    row.entry.principal = MoneyOf(rows["Principal"]);
    row.entry.payDown = MoneyOf(rows["Paydown"]);
    row.entry.interest = MoneyOf(rows["Interest"]);
    row.entry.other = MoneyOf(rows["Other"]);
    row.total = MoneyOf(rows["Total"]);
    row.entry.flags = LogFlags{CountOf(rows["Flags"])};
    return row;
}

} // namespace

std::vector<LogRow> ReadLog(std::int32_t idMortgage, LogPart part) {
    const std::string filter =
        part == LogPart::PaymentDue ? "AND (IdTransaction = 0) " : "AND (IdTransaction <> 0) ";
    Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT IdMortgageLog, Flags, DatePosted, Category, Description, Principal, Paydown, "
              "Interest, Other, Total FROM MortgageLog WHERE (IdMortgage = ?) " +
                  filter + "ORDER BY DateValue(DatePosted) DESC",
              platform::CursorMode::ReadOnly, {idMortgage});
    std::vector<LogRow> log;
    for (; !rows.Eof(); rows.MoveNext())
        log.push_back(RowOf(rows));
    return log;
}

std::int32_t TransactionOfLogRow(std::int32_t idMortgageLog) {
    const auto id = core::LookUp("SELECT IdTransaction FROM MortgageLog WHERE IdMortgageLog = ?",
                                 {idMortgageLog});
    return id ? id->AsLong() : 0;
}

bool DeleteLogRows(const std::vector<std::int32_t>& ids, std::string_view question) {
    if (ids.empty()) return false;
    if (ids.size() == 1) return removal::DeleteRecord(core::kMortgageLog, ids.front());
    if (!platform::TheDialogs().AskYesNo("Confirm Delete", question, platform::Icon::Question)) {
        return false;
    }
    platform::UnitOfWork unit(core::App().Connection);
    for (const std::int32_t id : ids)
        removal::RemoveRecord(core::kMortgageLog, id, removal::Tell::Nobody);
    unit.Commit();
    core::NotifyAll(core::kMortgageLog, core::kRecordsChanged, 0);
    return true;
}

} // namespace mortgages
