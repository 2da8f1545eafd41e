#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// Returns the date on which a new lease is proposed to start.
platform::Date FirstOfNextMonth();

/// Opens `row` on a new lease that isn't stored, with its proposed contents: the first of the next
/// month, and the settings of the books. For a screen to show. Throws on failure.
void ProposeLease(platform::Recordset& row);

/// The entries of the lease screen that are checked before a save.
struct LeaseEntry {
    std::int32_t idUnit = 0;
    std::int32_t idTenant = 0;
    platform::Currency rent;
    bool hasNextDue = false;
};

/// Returns the errors in the entries, a line each; empty if they can be saved.
std::vector<std::string> LeaseErrors(const LeaseEntry& entry);

/// Throws ConflictError if the unit or the tenant of a new lease was deleted since it was chosen.
/// Called within the unit of work that saves the lease.
void CheckParties(std::int32_t idUnit, std::int32_t idTenant);

/// Sets what every lease begins with, whatever was entered: it is pending, and its first term
/// begins on its first day.
void SetBeginning(platform::Recordset& row);

enum class LeaseAge { New, Stored };

/// Saves a lease's row, filled in by the screen. A new lease is pending until its dates say
/// otherwise, takes its accounts from the settings and is charged the deposits of its unit; unit
/// and tenant get their status. One unit of work. Throws on failure.
void SaveLease(platform::Recordset& row, LeaseAge age);

/// The parts of the lease screen that are available, depending on the lease's status.
struct LeaseAvailability {
    bool giveNotice = false;
    bool breakLease = false;
    bool cancelNotice = false;
    bool renewLease = false;
    /// Whether Reprocess and Roll Forward are allowed.
    bool runs = true;
    bool dateActive = true;
    bool dateRenewed = true;
    bool dateVacating = true;
    /// Whether the vacating date has no meaning and is left blank.
    bool blankVacating = false;
    /// Whether tenant and unit can still be chosen.
    bool parties = false;

    friend bool operator==(const LeaseAvailability&, const LeaseAvailability&) = default;
};

LeaseAvailability AvailabilityOf(LeaseAge age, std::string_view status);

/// Opens `row` with the lease's balances as its ledger has them now; the row isn't stored, only
/// shown on a screen. There is no current row if the lease was deleted.
void ReadBalances(platform::Recordset& row, std::int32_t idLease);

/// Stores a lease's balances after a change of its ledger and broadcasts it; does nothing if the
/// lease was deleted. Throws on failure.
void StoreBalances(std::int32_t idLease);

} // namespace leases
