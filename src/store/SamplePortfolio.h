#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/database/Connection.h"
#include "platform/values/Date.h"

namespace store {

inline constexpr int kSampleUnits = 24;

struct SampleOptions {
    int units = kSampleUnits;
    /// The last day of the time that the sample covers.
    platform::Date today;
    /// Gives the next free record identifier, every time another one.
    std::function<std::int32_t()> nextId;
};

/// How a tenant of the sample pays.
enum class PayHabit {
    OnTime,        ///< on the due day
    FewDaysLate,   ///< within the days before a fee falls due
    Chronic,       ///< a week or two after the fee
    StoppedPaying, ///< on time up to a day, then not at all
    PaidAhead,     ///< before the due day, early enough for a discount
};

/// The course that one lease of the sample is going to take.
struct SampleHabit {
    std::int32_t idLease = 0;
    PayHabit habit = PayHabit::OnTime;
    platform::Date created;     ///< the day its row was saved and its deposits are charged
    platform::Date stopsPaying; ///< set for StoppedPaying: from this day on
    platform::Date givesNotice; ///< unset if the tenant stays
    platform::Date breaks;      ///< the day on which the lease is broken, usually unset
};

/// How one mortgage of the sample is going to be paid.
struct SampleLoan {
    std::int32_t idMortgage = 0;
    std::int32_t idBuilding = 0;
    int daysAfterDue = 0;       ///< from the due day to the day of payment
    platform::Date stopsPaying; ///< due days from this one on stay unpaid; unset if all are paid
};

struct SampleCast {
    /// The first day on which anything happens, about two years ago.
    platform::Date begins;
    /// Every lease, in the order of the rows.
    std::vector<SampleHabit> leases;
    std::vector<SampleLoan> loans;
};

/// Fills an empty database with a portfolio as it was before its leases began: property, people,
/// maintenance, running mortgages as they were two years ago, and each lease as it was first saved,
/// "Pending" and with an empty ledger. The settings' row, if there is one, names the sample's
/// company and accounts. The same units, day and identifiers give the same rows. One unit of work;
/// failures are thrown.
SampleCast WriteSampleRecords(platform::Connection& connection, const SampleOptions& options);

} // namespace store
