#include "books/SaveTransaction.h"

#include "books/Mileage.h"
#include "books/RunTriggeredEvents.h"
#include "books/TellLists.h"
#include "books/TransactionListeners.h"
#include "books/TransactionRow.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
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

/// The deletion of a transaction's trip; the user is asked before the unit of work begins.
class TripRemoval {
  public:
    TripRemoval(std::int32_t idTransaction, Trip trip)
        : idTransaction_(idTransaction),
          asked_(trip == Trip::None ? TripOf(idTransaction) : 0),
          agreed_(asked_ != 0 && removal::AgreedToDelete(core::kMileage, asked_)) {}

    /// Returns true if a trip was deleted.
    bool Run() const {
        // Another program may have given the row another trip while the user was being asked.
        if (!agreed_ || TripOf(idTransaction_) != asked_) return false;
        removal::RemoveRecord(core::kMileage, asked_, removal::Tell::Nobody);
        return true;
    }

  private:
    std::int32_t idTransaction_;
    std::int32_t asked_;
    bool agreed_;
};

} // namespace

std::int32_t AddTransaction(const Transaction& entered, Trip trip) {
    platform::UnitOfWork unit(core::App().Connection);
    core::RowToWrite added = TransactionToWrite(0);
    WriteTransactionFields(added.row, entered);
    added["IdMileage"].Set(trip == Trip::Keep ? WriteTrip(0, entered) : 0);
    RunTriggeredEvents(entered);
    added.row.Update();
    TellTransactionListeners(added.id, entered);
    if (trip == Trip::Keep) TellLists({core::kMileage});
    unit.Commit();
    return added.id;
}

void EditTransaction(std::int32_t id, const Transaction& entered, const Transaction& shown,
                     Trip trip) {
    const TripRemoval removal(id, trip);
    platform::UnitOfWork unit(core::App().Connection);
    const bool removed = removal.Run();
    core::RowToWrite stored = TransactionToWrite(id);
    Recordset& rows = stored.row;
    if (stored.isNew) {
        WriteTransactionFields(rows, entered);
    } else {
        WriteChangedFields(rows, entered, shown);
    }
    const Transaction saved = ReadTransactionFields(rows);
    const std::int32_t oldTrip = IdOf(rows["IdMileage"]);
    const std::int32_t newTrip = trip == Trip::Keep ? WriteTrip(oldTrip, saved) : 0;
    if (newTrip != oldTrip) rows["IdMileage"].Set(newTrip);
    rows.Update();
    TellTransactionListeners(id, saved);
    if (removed || trip == Trip::Keep) TellLists({core::kMileage});
    unit.Commit();
}

} // namespace books
