#pragma once

#include <cstdint>
#include <functional>

#include "core/RecordKinds.h"

namespace core {

/// A record to open: 0 for a new one. What the parents are depends on the kind; for a transaction
/// and a unit, `parent2` is the record that a new one is copied from.
struct EditRequest {
    RecordKind kind = kNone;
    std::int32_t id = 0;
    std::int32_t parent1 = 0;
    std::int32_t parent2 = 0;
    std::int32_t parent3 = 0;

    friend bool operator==(const EditRequest&, const EditRequest&) = default;
};

using RecordOpener = std::function<void(const EditRequest& request)>;

/// Registers the editor that opens the records of a kind; transactions have their own function.
void RegisterOpener(RecordKind kind, RecordOpener opener);

/// The screen that a transaction is edited on: the payment's screen if a payment made it.
enum class TransactionEditor { Transaction, RentPayment, MortgagePayment };

/// A transaction's editor, with the lease and the mortgage that it is about (0 for none).
struct TransactionPlace {
    TransactionEditor editor = TransactionEditor::Transaction;
    std::int32_t idLease = 0;
    std::int32_t idMortgage = 0;

    friend bool operator==(const TransactionPlace&, const TransactionPlace&) = default;
};

/// Returns where a stored transaction is edited; the transaction's own editor for id 0 and for a
/// transaction that can't be read.
TransactionPlace FindTransactionPlace(std::int32_t id);

using TransactionOpener =
    std::function<void(const EditRequest& request, const TransactionPlace& place)>;
void RegisterTransactionOpener(TransactionEditor editor, TransactionOpener opener);

/// Returns whether records of the kind can be opened.
bool HasEditor(RecordKind kind);

/// Registers the function that finds the open editor of an identifier and brings it to the front;
/// it returns true if there is such an editor, in whatever state.
void RegisterOpenRecords(std::function<bool(std::int32_t id)> bringToFront);

/// Brings the open editor of the record to the front, or opens one; a new record (id 0) always gets
/// an editor of its own. Nothing opens for a kind without an editor.
void EditRecord(RecordKind kind, std::int32_t id, std::int32_t parent1 = 0,
                std::int32_t parent2 = 0, std::int32_t parent3 = 0);

} // namespace core
