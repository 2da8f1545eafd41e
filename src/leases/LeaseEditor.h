#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace leases {

/// The day that a new lease is proposed to start on.
platform::Date FirstOfNextMonth();

/// Opens `row` on a lease that isn't stored, with what a new one starts from: the first of the next
/// month, and the settings of the books. For a screen to show; failures are thrown.
void ProposeLease(platform::Recordset& row);

/// What the lease screen holds that is tested before a save.
struct LeaseEntry {
    std::int32_t idUnit = 0;
    std::int32_t idTenant = 0;
    platform::Currency rent;
    bool hasNextDue = false;
};

/// What is wrong with it, a line each.
std::vector<std::string> LeaseErrors(const LeaseEntry& entry);

enum class LeaseAge { New, Stored };

/// Writes a lease's row that the screen has filled in. A new lease is pending until its dates say
/// otherwise, takes the accounts of the settings and is charged the deposits of its unit; unit and
/// tenant take their status at once. One unit of work; failures are thrown.
void SaveLease(platform::Recordset& row, LeaseAge age);

/// What a lease of a status allows on its screen.
struct LeaseAvailability {
    bool giveNotice = false;
    bool breakLease = false;
    bool cancelNotice = false;
    bool renewLease = false;
    /// Reprocess and roll forward.
    bool runs = true;
    bool dateActive = true;
    bool dateRenewed = true;
    bool dateVacating = true;
    /// The day of leaving has no meaning, so none shows.
    bool blankVacating = false;
    /// Tenant and unit can still be chosen.
    bool parties = false;

    friend bool operator==(const LeaseAvailability&, const LeaseAvailability&) = default;
};

LeaseAvailability AvailabilityOf(LeaseAge age, std::string_view word);

/// Whether a lease of this term type has an end: one that runs on from week to week or month to
/// month has none.
bool HasEnd(std::string_view termType);

/// The balances of a lease as its ledger has them now, in a row that is not written: for a screen
/// to show. No current row when the lease has gone.
void ReadBalances(platform::Recordset& row, std::int32_t idLease);

/// Stores the balances of a lease after a change of its ledger and tells the screens; does nothing
/// for a lease that was deleted. Failures are thrown.
void StoreBalances(std::int32_t idLease);

} // namespace leases
