#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "leases/RentLog.h"
#include "platform/database/Recordset.h"

namespace leases {

/// What the screen of one charge is called, by the class of the charge.
std::string_view ChargeCaption(RentClass rentClass);

/// The categories that the screen offers. The last one is what a new charge starts with.
std::vector<std::string> ChargeCategories(RentClass rentClass);

/// Saves a row of the ledger as the screen has filled it in, and the lease's balances with it, in
/// one unit of work. Throws ConflictError if the row isn't settled by `idTransactionRead` any more
/// (0: open), as it was when the screen read it.
void SaveCharge(platform::Recordset& row, std::int32_t idTransactionRead);
/// An amount in whole cents, halves away from zero.
platform::Currency InCents(platform::Currency amount);

} // namespace leases
