#include "core/TakenBack.h"

#include <algorithm>

#include "core/KindOfTable.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace core {

using platform::Date;
using platform::Recordset;

namespace {

bool HasTable() {
    return TableExists("TakenBack");
}

std::int16_t Code(Posting posting) {
    return static_cast<std::int16_t>(posting);
}

constexpr std::string_view kSameRow =
    "(RecordKind = ?) AND (IdRecord = ?) AND (Posting = ?) AND (DatePosted = ?) AND (IdRow = ?)";

} // namespace

bool TakenRow::IsSameRow(const TakenRow& other) const {
    return recordKind == other.recordKind && recordId == other.recordId &&
           posting == other.posting && date == other.date && rowId == other.rowId;
}

bool TakenBack::Has(Posting posting, Date date) {
    if (!rows_) {
        rows_.emplace();
        if (!HasTable()) return false;
        Recordset stored = Read(
            "SELECT Posting, DatePosted FROM TakenBack WHERE (IdRecord = ?) AND (RecordKind = ?)",
            {id_, kind_});
        for (; !stored.Eof(); stored.MoveNext())
            rows_->emplace_back(Posting{ShortOf(stored[0])}, TextOf(stored[1]));
    }
    // The day is only formatted for the few records of which a row was taken back.
    return !rows_->empty() &&
           std::ranges::find(*rows_, std::pair(posting, date.ToText())) != rows_->end();
}

std::vector<TakenRow> ReadTakenBack() {
    std::vector<TakenRow> rows;
    if (!HasTable()) return rows;
    Recordset stored =
        Read("SELECT RecordKind, IdRecord, Posting, DatePosted, IdRow, DateTaken FROM TakenBack");
    for (; !stored.Eof(); stored.MoveNext()) {
        rows.push_back({.recordKind = KindOf(stored["RecordKind"]),
                        .recordId = IdOf(stored["IdRecord"]),
                        .posting = Posting{ShortOf(stored["Posting"])},
                        .date = Date::TryParse(TextOf(stored["DatePosted"])).value_or(Date()),
                        .rowId = IdOf(stored["IdRow"]),
                        .takenOn = Date::TryParse(TextOf(stored["DateTaken"])).value_or(Date())});
    }
    return rows;
}

std::optional<TakenRow> FindTakenBack(const TakenRow& row) {
    if (!HasTable()) return std::nullopt;
    Recordset stored =
        Read("SELECT DateTaken, Content FROM TakenBack WHERE " + std::string(kSameRow),
             {row.recordKind, row.recordId, Code(row.posting), row.date.ToText(), row.rowId});
    if (stored.Eof()) return std::nullopt;
    TakenRow found = row;
    found.takenOn = Date::TryParse(TextOf(stored["DateTaken"])).value_or(Date());
    found.content = TextOf(stored["Content"]);
    return found;
}

void RememberTakenBack(const TakenRow& row) {
    Execute(
        "INSERT INTO TakenBack (RecordKind, IdRecord, Posting, DatePosted, IdRow, DateTaken, "
        "Content) VALUES (?, ?, ?, ?, ?, ?, ?)",
        {row.recordKind, row.recordId, Code(row.posting), row.date.ToText(), row.rowId,
         row.takenOn.ToText(), row.content});
}

void ForgetTakenBack(const TakenRow& row) {
    Execute("DELETE * FROM TakenBack WHERE " + std::string(kSameRow),
            {row.recordKind, row.recordId, Code(row.posting), row.date.ToText(), row.rowId});
}

void ForgetTakenBackOf(RecordKind recordKind, std::int32_t recordId) {
    if (!HasTable()) return;
    Execute("DELETE * FROM TakenBack WHERE (RecordKind = ?) AND (IdRecord = ?)",
            {recordKind, recordId});
}

} // namespace core
