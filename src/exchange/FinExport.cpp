#include "exchange/FinExport.h"

#include <optional>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "exchange/FinExportLines.h"
#include "exchange/OwnFiles.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/DraftFile.h"
#include "platform/values/Errors.h"

namespace exchange {

namespace {

/// Returns the condition for the transactions of an account. The export reads them in the table's
/// order, so `debit` and `credit` are written in a form that makes the engine scan the table.
std::string WhereOf(std::int32_t id, const ExportRange& range, std::string_view debit = "DebitId",
                    std::string_view credit = "CreditID") {
    switch (range.range) {
        case TransRange::New:
            return fmt::format(
                "WHERE (({1} = {0}) AND (DebitExported = FALSE)) "
                "OR (({2} = {0}) AND (CreditExported = FALSE)) ",
                id, debit, credit);
        case TransRange::All:
            return fmt::format("WHERE ({1} = {0}) OR ({2} = {0}) ", id, debit, credit);
        case TransRange::DateRange:
            break;
    }
    return fmt::format(
        "WHERE (({3} = {0}) OR ({4} = {0})) "
        "AND (DateValue(DateEffective) >= #{1}#) "
        "AND (DateValue(DateEffective) <= #{2}#) ",
        id, range.start.ToText(), range.end.ToText(), debit, credit);
}

/// Returns a stored date in the form of the export; a text that isn't a valid date is exported
/// unchanged.
std::string DayText(const std::string& stored) {
    const auto day = platform::Date::TryParse(stored);
    return day ? day->ToText() : stored;
}

/// Writes the entries of a request, transaction by transaction.
class Exporter {
  public:
    Exporter(const FinExportRequest& request, platform::DraftFile& file)
        : request_(request), file_(file) {
        file_.Write(FormatOf(request.type).head);
    }

    void ExportAccount(std::int32_t id) {
        platform::Recordset rows;
        if (!Open(rows, id)) return;
        for (; !rows.Eof(); rows.MoveNext()) {
            ++count_;
            Read(rows);
            // An account on both sides gets an entry for each.
            if (platform::IdOf(rows["CreditID"]) == id) Deposit(rows);
            if (platform::IdOf(rows["DebitId"]) == id) Check(rows);
            if (request_.mark == MarkExported::Yes) rows.Update();
            file_.Write(lines_);
        }
    }

    std::int64_t Count() const { return count_; }

  private:
    bool Open(platform::Recordset& rows, std::int32_t id) const {
        try {
            const std::string sql = "SELECT * FROM Transactions " +
                                    WhereOf(id, request_.range, "DebitId + 0", "CreditID + 0");
            rows = request_.mark == MarkExported::Yes ? core::Write(sql) : core::Read(sql);
            return true;
        } catch (const platform::DatabaseError&) {
            return false;
        }
    }

    void Read(platform::Recordset& rows) {
        const auto text = [&](std::string_view field) {
            return PlainText(platform::TextOf(rows[field]));
        };
        lines_.clear();
        entry_.date = PlainText(DayText(platform::TextOf(rows["DateEffective"])));
        entry_.checkNum = text("CheckNum");
        entry_.category = text("TaxCategory");
        entry_.description = text("Description");
        debitName_ = text("DebitDesc");
        creditName_ = text("CreditDesc");
    }

    void Deposit(platform::Recordset& rows) {
        entry_.type = kDeposit;
        entry_.account = creditName_;
        entry_.name = debitName_;
        entry_.amount = platform::MoneyOf(rows["Amount"]);
        if (request_.mark == MarkExported::Yes) rows["CreditExported"].Set(true);
        AppendEntry(lines_, request_.type, entry_, request_.limit);
    }

    void Check(platform::Recordset& rows) {
        entry_.type = kCheck;
        entry_.account = debitName_;
        entry_.name = creditName_;
        entry_.amount = platform::MoneyOf(rows["Amount"]) * -1;
        if (request_.mark == MarkExported::Yes) rows["DebitExported"].Set(true);
        AppendEntry(lines_, request_.type, entry_, request_.limit);
    }

    const FinExportRequest& request_;
    platform::DraftFile& file_;
    FinEntry entry_;
    std::string debitName_;
    std::string creditName_;
    std::string lines_;
    std::int64_t count_ = 0;
};

} // namespace

std::int32_t CountForExport(std::int32_t idAccount, const ExportRange& range) {
    const auto count = core::LookUp(
        "SELECT Count(*) AS [Result] FROM Transactions " + WhereOf(idAccount, range), {});
    return count ? count->AsLong() : 0;
}

FinExportObjection ObjectionTo(const FinExportRequest& request) {
    if (request.type == FinType::Qif && request.accounts.size() > 1) {
        return {"QIF Export Error",
                "Quicken can only export one account at a time, please just check one account."};
    }
    if (request.accounts.empty()) return {"Select Accounts", "No accounts selected for export."};
    return {};
}

std::int64_t RunFinExport(const FinExportRequest& request, const std::filesystem::path& file) {
    RefuseOwnFile(file);
    std::optional<platform::UnitOfWork> unit;
    if (request.mark == MarkExported::Yes) unit.emplace(core::App().Connection);
    platform::DraftFile draft(file);
    Exporter exporter(request, draft);
    for (const std::int32_t id : request.accounts)
        exporter.ExportAccount(id);
    draft.Publish();
    if (!unit) return exporter.Count();
    try {
        unit->Commit();
    } catch (...) {
        draft.TakeBack();
        throw;
    }
    unit.reset();
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    return exporter.Count();
}

std::string ExportedText(std::int64_t count) {
    return count == 0 ? "No records found for export."
                      : fmt::format("{} records successfully exported.", count);
}

} // namespace exchange
