#include "mortgages/LogRows.h"

#include <algorithm>

#include <fmt/core.h>

#include "books/Payment.h"
#include "core/ChargeLedger.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Format.h"

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
    row.entry.flags = LogFlags{ShortOf(rows["Flags"])};
    row.entry.idTransaction = IdOf(rows["IdTransaction"]);
    return row;
}

/// More rows would make a question that doesn't fit the screen.
constexpr std::size_t kMostNamed = 12;

/// Returns the row as the question names it, on a line of its own; an empty line for a deleted row.
std::string NameOf(std::int32_t idMortgageLog) {
    Recordset row =
        core::Read("SELECT DatePosted, Description, Total FROM MortgageLog WHERE IdMortgageLog = ?",
                   {idMortgageLog});
    if (row.Eof()) return "\n";
    return fmt::format("\n{}  {}  {}", TextOf(row["DatePosted"]), TextOf(row["Description"]),
                       platform::FormatMoney(MoneyOf(row["Total"])));
}

void CheckUnchanged(const ShownCharge& shown) {
    const auto settledBy = core::SettledBy(core::kMortgageLedger, shown.idMortgageLog);
    if (!settledBy || *settledBy == shown.idTransaction) return;
    throw platform::ConflictError(
        shown.idTransaction == 0
            ? "One of these charges has been paid in the meantime. Nothing was deleted."
            : "The payment of one of these charges has been deleted in the meantime. Nothing was "
              "deleted.");
}

} // namespace

std::vector<LogRow> ReadLog(std::int32_t idMortgage, LogPart part) {
    const std::string filter =
        part == LogPart::PaymentDue ? "AND (IdTransaction = 0) " : "AND (IdTransaction <> 0) ";
    Recordset rows = core::Read(
        "SELECT IdMortgageLog, IdTransaction, Flags, DatePosted, Category, Description, "
        "Principal, Paydown, Interest, Other, Total FROM MortgageLog "
        "WHERE (IdMortgage = ?) " +
            filter + "ORDER BY DateValue(DatePosted) DESC",
        {idMortgage});
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

bool DeleteLogRows(const std::vector<ShownCharge>& rows, std::string_view question,
                   SingleRow single) {
    books::ChargeDeletion deletion{.kind = core::kMortgageLog};
    for (const ShownCharge& row : rows)
        deletion.ids.push_back(row.idMortgageLog);
    if (rows.size() != 1 || single == SingleRow::AsSeveral) {
        deletion.question =
            std::string(question) + "\n" + books::NameFirst(deletion.ids, kMostNamed, NameOf);
    }
    deletion.check = [&rows](std::int32_t id) {
        CheckUnchanged(*std::ranges::find(rows, id, &ShownCharge::idMortgageLog));
    };
    return books::DeleteCharges(deletion);
}

} // namespace mortgages
