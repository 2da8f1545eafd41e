#pragma once

#include <cstdint>

#include "books/PostTransaction.h"
#include "core/Rows.h"
#include "platform/database/Recordset.h"

namespace books {

// The fields of a transaction's row that all its writers share. All of these throw on failure.

/// Opens the row of this id for writing; a deleted row is added again under its id, and id 0 adds
/// one under a new id. A new row counts as not exported on either side.
core::RowToWrite TransactionToWrite(std::int32_t id);

/// Writes date, parties, amount, category, class and references. The stored balances are always 0:
/// a party's balance is always the sum of its rows.
void WriteTransactionFields(platform::Recordset& rows, const Transaction& transaction);

/// Writes only the fields in which `entered` differs from `shown`, and the balances if any
/// of them does.
void WriteChangedFields(platform::Recordset& rows, const Transaction& entered,
                        const Transaction& shown);

/// Returns the references of the current row, of a transaction or of an event; unset ones are 0.
References ReadReferences(platform::Recordset& rows);

/// Returns the fields of the current row; unset ones are empty or 0.
Transaction ReadTransactionFields(platform::Recordset& rows);

} // namespace books
