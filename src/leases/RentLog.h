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

/// A row of the rent log as it is written.
struct RentLogEntry {
    std::int32_t idLease = 0;
    /// The paying transaction, 0 while the row is open.
    std::int32_t idTransaction = 0;
    platform::Date datePosted{};
    RentClass rentClass = RentClass::Rent;
    std::string category{};
    /// Positive is owed by the tenant.
    platform::Currency amount{};
    std::string description{};
    RentFlags flags = RentFlags::Ordinary;
};

// Each of these writers tells the screens of the rows it wrote. Failures are thrown.

/// Writes the row `idRentLog`, or a new one if that is 0 or the row was deleted; returns the row's
/// id. An amount of zero writes nothing and returns `idRentLog` as it came.
std::int32_t WriteRentLog(const RentLogEntry& entry, std::int32_t idRentLog = 0);

/// Writes all fields of the row `idRentLog`, whatever the amount; returns false if it was deleted.
bool RewriteRentLog(const RentLogEntry& entry, std::int32_t idRentLog);

/// Adds the charges of a walk to the ledger of a lease, in their order.
void WriteCharges(std::int32_t idLease, std::span<const Charge> charges);

/// Puts the sums of the ledger into the balances of the open lease row, which the caller writes.
/// Failures are thrown.
void SetLeaseBalances(platform::Recordset& row);

} // namespace leases
