#include "core/EditRecord.h"

#include <exception>
#include <map>
#include <utility>

#include "core/MessagePump.h"
#include "core/RecordKinds.h"
#include "core/Session.h"

namespace core {

namespace {

struct Openers {
    std::map<std::int16_t, RecordOpener> byKind;
    std::map<TransactionEditor, TransactionOpener> ofTransactions;
    std::function<bool(std::int32_t)> bringToFront;
};

Openers& Registered() {
    static Openers openers;
    return openers;
}

// Classes of transactions, and the flags of those that take a deposit back out of a lease.
constexpr std::int32_t kRentClass = 1;
constexpr std::int32_t kSubsidyClass = 2;
constexpr std::int32_t kDepositClass = 3;
constexpr std::int32_t kMortgageClass = 5;
constexpr std::int32_t kRefunded = 3;
constexpr std::int32_t kChargedOff = 4;

TransactionEditor EditorOf(std::int32_t transactionClass, std::int32_t flags) {
    switch (transactionClass) {
        case kRentClass:
        case kSubsidyClass:
            return TransactionEditor::RentPayment;
        case kDepositClass:
            return flags == kRefunded || flags == kChargedOff ? TransactionEditor::Transaction
                                                              : TransactionEditor::RentPayment;
        case kMortgageClass:
            return TransactionEditor::MortgagePayment;
        default:
            return TransactionEditor::Transaction;
    }
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

void RegisterOpener(std::int16_t kind, RecordOpener opener) {
    Registered().byKind[kind] = std::move(opener);
}

void RegisterTransactionOpener(TransactionEditor editor, TransactionOpener opener) {
    Registered().ofTransactions[editor] = std::move(opener);
}

bool HasEditor(std::int16_t kind) {
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
                                 Access::ReadOnly, {id}) < 1) {
        return {};
    }
    const auto orZero = [&](std::string_view field) {
        return rows[field].IsNull() ? 0 : rows[field].AsLong();
    };
    try {
        return {EditorOf(orZero("Class"), orZero("Flags")), orZero("IdLease"),
                orZero("IdMortgage")};
    } catch (const std::exception&) {
        return {};
    }
}

void EditRecord(std::int16_t kind, std::int32_t id, std::int32_t parent1, std::int32_t parent2,
                std::int32_t parent3) {
    const auto& bringToFront = Registered().bringToFront;
    if (id != 0 && bringToFront && bringToFront(id)) return;
    Open({kind, id, parent1, parent2, parent3});
    LetMessagesRun();
}

} // namespace core
