#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "leases/LeaseWalk.h"
#include "leases/RentCodes.h"
#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// A row of the rent log to be written.
struct RentLogEntry {
    std::int32_t idLease = 0;
    /// The paying transaction, 0 while the row is open.
    std::int32_t idTransaction = 0;
    platform::Date datePosted{};
    TransactionClass rentClass = TransactionClass::Rent;
    std::string category{};
    /// Positive if the tenant owes it.
    platform::Currency amount{};
    std::string description{};
    RentFlags flags = RentFlags::Ordinary;
};

/// Returns the open row that a charge of a lease's walk becomes.
RentLogEntry EntryOf(std::int32_t idLease, const Charge& charge);

// Each of these writers broadcasts the rows it wrote. All throw on failure.

/// Writes the row `idRentLog`, or a new one if that is 0 or the row was deleted; returns the row's
/// id. An amount of zero writes nothing and returns `idRentLog`.
std::int32_t WriteRentLog(const RentLogEntry& entry, std::int32_t idRentLog = 0);

/// Writes all fields of the row `idRentLog`, whatever the amount; returns false if it was deleted.
bool RewriteRentLog(const RentLogEntry& entry, std::int32_t idRentLog);

/// Adds the charges of a walk to the ledger of a lease, in order, under consecutive ids; returns
/// the first, 0 if there are no charges.
std::int32_t WriteCharges(std::int32_t idLease, std::span<const Charge> charges);

/// Writes what a period's rent, once paid, earns towards the purchase of the unit. An amount of
/// zero writes nothing.
void WriteOptionCredit(std::int32_t idLease, platform::Date day, platform::Currency amount);

/// Sets the balances in the open lease row, which the caller writes, to the sums of the ledger.
/// Throws on failure.
void SetLeaseBalances(platform::Recordset& row);

} // namespace leases
