#pragma once

#include <map>
#include <string>
#include <vector>

#include "outlook/Forecast.h"

namespace outlook {

/// Returns the forecast without its late fees, which are charged only if nothing is paid until
/// then.
Forecast WithoutLateFees(const Forecast& forecast);

/// Money that comes in and goes out.
struct Sums {
    platform::Currency in;
    platform::Currency out;

    platform::Currency Net() const { return in - out; }
    void Add(const ForecastRow& row);
};

Sums TotalOf(const Forecast& forecast);

struct Week {
    platform::Date first;
    Sums sums;
};

/// Returns the weeks, seven days each, the first beginning today; rows before today count in the
/// first one. The last week may reach beyond the forecast.
std::vector<Week> WeeksOf(const Forecast& forecast);

/// The entries of one day on a page of a calendar.
struct CalendarDay {
    Sums sums;
    /// The other entries of the day: transfers, and dates to be aware of.
    std::vector<std::string> others;
    /// The place of the day's first row in the forecast.
    std::size_t firstRow = 0;

    /// Returns a few short lines: the money, then the other entries, or their number if there are
    /// too many.
    std::vector<std::string> Lines() const;
};

/// Returns the entries of every day that has a row.
std::map<platform::Date, CalendarDay> DaysOf(const Forecast& forecast);

} // namespace outlook
