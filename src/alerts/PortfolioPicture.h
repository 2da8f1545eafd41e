#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace alerts {

// The figures of the home page's picture. Each is the one that a report shows, for the report to be
// opened behind it. A figure that can't be read says why in `fault`, and the others go on.

/// Units that aren't hidden, and those of them that have a running lease.
struct Occupancy {
    std::int32_t units = 0;
    std::int32_t occupied = 0;
    std::string fault;
};

/// Rent, subsidies and fees that were charged in this month, and what was collected in it.
struct MonthsRent {
    platform::Date firstDay;
    platform::Currency charged;
    platform::Currency collected;
    std::string fault;
};

/// Income and expenses of one month.
struct MonthsFlow {
    platform::Date firstDay;
    platform::Currency income;
    platform::Currency expenses;
};

/// The last twelve months with this one, the oldest first.
struct YearsFlow {
    std::vector<MonthsFlow> months;
    std::string fault;
};

struct Debtor {
    std::int32_t idLease = 0;
    std::string tenant;
    std::string property;
    platform::Currency amount;
};

/// The leases that owe most, the most first, and what all leases owe, credits taken off.
struct Debts {
    std::vector<Debtor> most;
    platform::Currency total;
    std::string fault;
};

struct PortfolioPicture {
    Occupancy occupancy;
    MonthsRent rent;
    YearsFlow flow;
    Debts debts;
};

inline constexpr std::size_t kDebtorsShown = 5;

/// Returns the figures as of today.
PortfolioPicture GetPortfolioPicture();

// The reports that show the figures, by their descriptions.
inline constexpr std::string_view kOccupancyReport = "Vacancy and turnover";
inline constexpr std::string_view kRentReport = "Rent charged and collected";
inline constexpr std::string_view kFlowReport = "Cash flow by month";
inline constexpr std::string_view kDebtsReport = "Who owes what, by age";

/// "45 %" of a part in a whole, rounded; empty if the whole isn't positive.
std::string PercentText(platform::Currency part, platform::Currency whole);

} // namespace alerts
