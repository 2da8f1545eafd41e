#pragma once

#include <vector>

#include "core/RowTable.h"
#include "leases/Ledger.h"
#include "leases/RentPayment.h"

namespace leases {

// Rows of the ledger as tables. Their first column holds the ids in the rent log, their second the
// flags.

/// Returns the rows of a tab of the ledger; the open ones with their running total.
core::RowTable<LedgerRow> LedgerTable(std::vector<LedgerRow> rows, LedgerRows which);
/// Returns the charges that a payment may settle.
core::RowTable<PaymentCharge> ChargeTable(std::vector<PaymentCharge> charges);

} // namespace leases
