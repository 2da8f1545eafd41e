#include "books/PostTransaction.h"

#include "books/RunTriggeredEvents.h"
#include "books/TellLists.h"
#include "books/TransactionListeners.h"
#include "books/TransactionRow.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "platform/database/Recordset.h"

namespace books {

using platform::Recordset;

namespace {

void WriteAllFields(Recordset& rows, const Transaction& transaction) {
    WriteTransactionFields(rows, transaction);
    rows["Reconciled"].Set(false);
    rows["IdLedger"].Set(std::int32_t{0});
    rows["IdMileage"].Set(std::int32_t{0});
}

} // namespace

std::int32_t PostTransaction(const Transaction& transaction, Triggers triggers) {
    platform::UnitOfWork unit(core::App().Connection);
    auto [id, rows, isNew] = TransactionToWrite(0);
    WriteAllFields(rows, transaction);
    if (triggers == Triggers::Fire) RunTriggeredEvents(transaction);
    rows.Update();
    TellTransactionListeners(id, transaction);
    TellLists({core::kTransaction});
    unit.Commit();
    return id;
}

void RewriteTransaction(std::int32_t id, const Transaction& transaction) {
    core::RowToWrite stored = TransactionToWrite(id);
    WriteAllFields(stored.row, transaction);
    stored.row.Update();
}

} // namespace books
