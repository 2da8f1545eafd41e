#pragma once

#include <cstdint>

#include "books/PostTransaction.h"
#include "platform/database/Recordset.h"

namespace books {

// What all writers of transactions write of a row. Failures are thrown.

/// Starts a new row of this id, which no side has been exported of.
void AddTransactionRow(platform::Recordset& rows, std::int32_t id);

/// Opens the row of this id to write it; a row that has gone is started again under its id.
void OpenTransactionRow(platform::Recordset& rows, std::int32_t id);

/// Date, sides, amount, category, what made it and what it is about. The balances are always 0:
/// what a party has is always added up from the rows. With `before`, what the transaction was when
/// it was read, only the fields that differ from it are written.
void WriteTransactionFields(platform::Recordset& rows, const Transaction& transaction,
                            const Transaction* before = nullptr);

} // namespace books
