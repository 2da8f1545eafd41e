#include "core/EditRecord.h"

#include <exception>
#include <map>
#include <utility>

#include "core/Codes.h"
#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"

namespace core {

namespace {

struct Openers {
    std::map<RecordKind, RecordOpener> byKind;
    std::map<TransactionEditor, TransactionOpener> ofTransactions;
    std::function<bool(std::int32_t)> bringToFront;
};

Openers& Registered() {
    static Openers openers;
    return openers;
}

/// Returns the screen that made a payment. The refund of a deposit, and a charge against one, are
/// not payments.
TransactionEditor EditorOf(TransactionClass transactionClass, RentFlags flags) {
    const bool isDepositReturn =
        transactionClass == TransactionClass::Deposit &&
        (flags == RentFlags::DepositRefund || flags == RentFlags::DepositCharge);
    const Ledger ledger = isDepositReturn ? Ledger::None : LedgerOf(transactionClass);
    if (ledger == Ledger::Rent) return TransactionEditor::RentPayment;
    return ledger == Ledger::Mortgage ? TransactionEditor::MortgagePayment
                                      : TransactionEditor::Transaction;
}

void Open(const EditRequest& request) {
    if (request.kind == kTransaction) {
        const TransactionPlace place = FindTransactionPlace(request.id);
        const auto found = Registered().ofTransactions.find(place.editor);
        if (found != Registered().ofTransactions.end() && found->second)
            found->second(request, place);
        return;
    }
    const auto found = Registered().byKind.find(request.kind);
    if (found != Registered().byKind.end() && found->second) found->second(request);
}

} // namespace

void RegisterOpener(RecordKind kind, RecordOpener opener) {
    Registered().byKind[kind] = std::move(opener);
}

void RegisterTransactionOpener(TransactionEditor editor, TransactionOpener opener) {
    Registered().ofTransactions[editor] = std::move(opener);
}

bool HasEditor(RecordKind kind) {
    const auto isSet = [](const auto& openers, auto key) {
        const auto found = openers.find(key);
        return found != openers.end() && found->second;
    };
    if (kind != kTransaction) return isSet(Registered().byKind, kind);
    return isSet(Registered().ofTransactions, TransactionEditor::Transaction);
}

void RegisterOpenRecords(std::function<bool(std::int32_t id)> bringToFront) {
    Registered().bringToFront = std::move(bringToFront);
}

TransactionPlace FindTransactionPlace(std::int32_t id) {
    platform::Recordset rows;
    if (id == 0 || OpenRecordset(rows,
                                 "SELECT Class, Flags, IdLease, IdMortgage FROM Transactions "
                                 "WHERE IdTransaction = ?",
                                 platform::CursorMode::ReadOnly, {id}) < 1) {
        return {};
    }
    try {
        return {EditorOf(TransactionClass{platform::ShortOf(rows["Class"])},
                         RentFlags{platform::ShortOf(rows["Flags"])}),
                platform::IdOf(rows["IdLease"]), platform::IdOf(rows["IdMortgage"])};
    } catch (const std::exception&) {
        return {};
    }
}

void EditRecord(RecordKind kind, std::int32_t id, std::int32_t parent1, std::int32_t parent2,
                std::int32_t parent3) {
    const auto& bringToFront = Registered().bringToFront;
    if (id != 0 && bringToFront && bringToFront(id)) return;
    Open({kind, id, parent1, parent2, parent3});
    LetMessagesRun();
}

} // namespace core
