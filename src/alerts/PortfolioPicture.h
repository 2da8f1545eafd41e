#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

namespace alerts {

// The figures of the home page's picture. Each is also shown by a report, which the user can open
// for the details. If a figure can't be read, its `fault` says why, and the others are read all the
// same.

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

/// Income and expenses of the last twelve months, this month included, oldest first.
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

/// The leases that owe the most, the largest debt first, and the total that all leases owe, less
/// their credits.
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

/// Returns a part as a percentage of a whole, rounded: "45 %". Empty if the whole isn't positive.
std::string PercentText(platform::Currency part, platform::Currency whole);

} // namespace alerts
