#include "books/SaveTransaction.h"

#include "books/Mileage.h"
#include "books/RunTriggeredEvents.h"
#include "books/TransactionListeners.h"
#include "books/TransactionRow.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Session.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "removal/DeleteRecord.h"

namespace books {

using platform::Recordset;

namespace {

std::int32_t TripOf(std::int32_t idTransaction) {
    const auto idMileage =
        core::LookUp("SELECT IdMileage FROM Transactions WHERE IdTransaction = ?", {idTransaction});
    return idMileage ? idMileage->AsLong() : 0;
}

bool IsStored(std::int32_t id) {
    return id != 0 &&
           core::App()
               .Connection
               .Scalar("SELECT IdTransaction FROM Transactions WHERE IdTransaction = ?", {id})
               .has_value();
}

void OpenRow(Recordset& rows, std::int32_t& id) {
    if (id != 0) return OpenTransactionRow(rows, id);
    rows.Open(core::App().Connection, "Transactions", platform::CursorMode::AppendOnly);
    id = core::NextId();
    AddTransactionRow(rows, id);
}

} // namespace

std::int32_t SaveTransaction(std::int32_t id, const Transaction& transaction, Trip trip,
                             const Transaction* before) {
    const bool isNew = id == 0;
    const std::int32_t oldTrip = isNew ? 0 : TripOf(id);
    const bool removesTrip =
        trip == Trip::None && oldTrip != 0 && removal::AgreedToDelete(core::kMileage, oldTrip);

    platform::UnitOfWork unit(core::App().Connection);
    if (removesTrip) removal::RemoveRecord(core::kMileage, oldTrip);
    if (!IsStored(id)) before = nullptr;
    Recordset rows;
    OpenRow(rows, id);
    WriteTransactionFields(rows, transaction, before);
    const std::int32_t newTrip = trip == Trip::Keep ? WriteTrip(oldTrip, transaction) : 0;
    if (!before || newTrip != oldTrip) rows["IdMileage"].Set(newTrip);
    if (isNew) RunTriggeredEvents(transaction);
    rows.Update();
    TellTransactionListeners(id, transaction);
    unit.Commit();
    return id;
}

} // namespace books
