#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "leases/RentLog.h"
#include "platform/database/Recordset.h"

namespace leases {

/// Returns the title of the screen of one charge, by the charge's class.
std::string_view ChargeCaption(TransactionClass rentClass);

/// Returns the categories that the screen offers. A new charge starts with the last one.
std::vector<std::string> ChargeCategories(TransactionClass rentClass);

/// Saves a row of the ledger, filled in by the screen, and the lease's balances in one unit of
/// work. Throws ConflictError if the row's payment is no longer `idTransactionRead` (0: open), as
/// it was when the screen read it.
void SaveCharge(platform::Recordset& row, std::int32_t idTransactionRead);
/// Rounds an amount to whole cents, halves away from zero.
platform::Currency InCents(platform::Currency amount);

} // namespace leases
