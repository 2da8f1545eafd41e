#include "shell/TakeBack.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include <fmt/core.h>

#include "core/ChargeLedger.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/LeaseEditor.h"
#include "mortgages/MortgageUpkeep.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"
#include "removal/DeleteRecord.h"
#include "shell/TakenContent.h"

namespace shell {

using platform::ConflictError;
using platform::Recordset;
using platform::UnitOfWork;

namespace {

/// The tables in which the run posts the rows of a kind of records.
struct PostedLedger {
    core::RecordKind recordKind;
    core::RecordKind rowKind;
    std::string_view table;
    std::string_view key;
    std::string_view owner; ///< the field with the record's id; empty if the rows don't have it
    std::string_view date;
    std::string_view category;
    std::string_view amount;
};

constexpr auto kLedgers = std::to_array<PostedLedger>({
    {core::kLease, core::kRentLog, "RentLog", "IdRentLog", "IdLease", "DatePosted", "Category",
     "Amount"},
    {core::kMortgage, core::kMortgageLog, "MortgageLog", "IdMortgageLog", "IdMortgage",
     "DatePosted", "Category", "Total"},
    {core::kAutoEvent, core::kTransaction, "Transactions", "IdTransaction", "", "DateEffective",
     "TaxCategory", "Amount"},
});

[[noreturn]] void Refuse(const DigestRow& row, std::string_view reason) {
    throw ConflictError(fmt::format("{}, {}, {}: {}", row.date.ToText(),
                                    platform::Trim(row.category), platform::FormatMoney(row.amount),
                                    reason));
}

const PostedLedger& LedgerOf(const DigestRow& row) {
    const auto* const ledger =
        std::ranges::find(kLedgers, row.recordKind, &PostedLedger::recordKind);
    if (row.reason.posting == core::Posting::FromCredit) {
        Refuse(row,
               "this payment settled charges from credit. Delete it in the ledger of the lease; "
               "its charges and the credit are then open again.");
    }
    if (ledger == kLedgers.end() || row.rowId == 0) Refuse(row, "this row can't be taken back.");
    return *ledger;
}

Recordset StoredRow(const PostedLedger& ledger, const DigestRow& row) {
    return core::Read(fmt::format("SELECT * FROM {} WHERE {} = ?", ledger.table, ledger.key),
                      {row.rowId});
}

/// Returns whether a payment settles the row or, if the row is a transaction, whether it is a
/// payment.
bool IsPaid(const PostedLedger& ledger, Recordset& stored) {
    if (ledger.rowKind == core::kTransaction)
        return core::LedgerOfTransaction(IdOf(stored[ledger.key])) != nullptr;
    return IdOf(stored["IdTransaction"]) != 0;
}

void CheckAsPosted(const PostedLedger& ledger, Recordset& stored, const DigestRow& row) {
    if (IsPaid(ledger, stored))
        Refuse(row, "it has been paid. Delete its payment first, or leave the row as it is.");
    const bool isSame =
        TextOf(stored[ledger.date]) == row.date.ToText() &&
        platform::Trim(TextOf(stored[ledger.category])) == platform::Trim(row.category) &&
        MoneyOf(stored[ledger.amount]) == row.amount &&
        (ledger.owner.empty() || IdOf(stored[ledger.owner]) == row.recordId);
    if (!isSame)
        Refuse(row, "it has been changed since it was posted. Delete it in its ledger instead.");
}

void Restore(const PostedLedger& ledger, const DigestRow& row, const std::string& content) {
    if (!StoredRow(ledger, row).Eof()) Refuse(row, "it is in its ledger already.");
    if (row.recordKind == core::kMortgage && mortgages::HasPayoffAfter(row.recordId, row.rowId)) {
        Refuse(row,
               "the payoff of its mortgage, posted since, takes its place. Delete the payoff in "
               "the ledger of the mortgage first.");
    }
    if (!RestoreContent(ledger.table, content)) Refuse(row, "what was stored of it can't be read.");
}

/// Updates the balances and the lists that depend on these rows.
void Follow(std::span<const DigestRow> rows) {
    std::set<std::int32_t> leases;
    for (const DigestRow& row : rows) {
        core::NotifyAll(LedgerOf(row).rowKind, core::kRecordsChanged, 0);
        if (row.recordKind == core::kLease) leases.insert(row.recordId);
    }
    for (const std::int32_t idLease : leases)
        leases::StoreBalances(idLease);
    core::NotifyAll(core::kFileObject, core::kRecordsChanged, 0); // the files attached to the rows
}

/// Returns whether a run has posted a deleted row again, under another id.
bool IsPostedAgain(const PostedLedger& ledger, const DigestRow& row) {
    if (ledger.owner.empty()) return false;
    return core::Exists(
        fmt::format("SELECT {} FROM {} WHERE ({} = ?) AND ({} = ?) AND ({} = ?) AND ({} = ?)",
                    ledger.key, ledger.table, ledger.owner, ledger.date, ledger.category,
                    ledger.amount),
        {row.recordId, row.date.ToText(), row.category, row.amount});
}

void TakeOne(const DigestRow& row) {
    const PostedLedger& ledger = LedgerOf(row);
    core::TakenRow taken = TakenRowOf(row);
    if (core::FindTakenBack(taken)) Refuse(row, "it has been taken back already.");
    if (!core::RecordExists(row.recordKind, row.recordId))
        Refuse(row, "its record has been deleted.");
    Recordset stored = StoredRow(ledger, row);
    if (!stored.Eof()) {
        CheckAsPosted(ledger, stored, row);
        taken.content = ContentOf(ledger.rowKind, row.rowId, stored);
        removal::RemoveRecord(ledger.rowKind, row.rowId, removal::Tell::Nobody);
    } else if (IsPostedAgain(ledger, row)) {
        Refuse(row,
               "it was deleted and posted again. Delete that row in its ledger too, then take this "
               "one back.");
    }
    taken.takenOn = platform::Today();
    core::RememberTakenBack(taken);
}

} // namespace

core::TakenRow TakenRowOf(const DigestRow& row) {
    return {.recordKind = row.recordKind,
            .recordId = row.recordId,
            .posting = row.reason.posting,
            .date = row.date,
            .rowId = row.rowId};
}

std::string NameOfRow(const RunDigest& digest, const DigestRow& row) {
    return fmt::format("{}, {}, {}: {}", row.date.ToText(), platform::Trim(row.category),
                       platform::FormatMoney(row.amount), digest.DescriptionOf(row));
}

void TakeBack(std::span<const DigestRow> rows) {
    UnitOfWork unit(core::App().Connection);
    for (const DigestRow& row : rows)
        TakeOne(row);
    Follow(rows);
    unit.Commit();
}

int PostAgain(std::span<const DigestRow> rows) {
    UnitOfWork unit(core::App().Connection);
    int deletedBefore = 0;
    for (const DigestRow& row : rows) {
        const PostedLedger& ledger = LedgerOf(row);
        const auto taken = core::FindTakenBack(TakenRowOf(row));
        if (!taken) Refuse(row, "it isn't taken back.");
        if (!core::RecordExists(row.recordKind, row.recordId))
            Refuse(row, "its record has been deleted.");
        if (taken->content.empty()) {
            ++deletedBefore;
        } else {
            Restore(ledger, row, taken->content);
        }
        core::ForgetTakenBack(*taken);
    }
    Follow(rows);
    unit.Commit();
    return deletedBefore;
}

} // namespace shell
