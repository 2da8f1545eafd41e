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

/// Writes a row of the ledger as it was entered, also one of zero, with its amount in whole cents,
/// and the lease's balances with it. One unit of work. Throws ConflictError if the row was paid, or
/// its payment changed, since `entry` was read.
void SaveCharge(platform::Recordset& row, const RentLogEntry& entry);
/// The same for a row that the screen has filled in itself.
void SaveCharge(platform::Recordset& row);
/// An amount in whole cents, halves to even.
platform::Currency InCents(platform::Currency amount);

} // namespace leases
