#pragma once

#include <map>
#include <string>
#include <vector>

#include "outlook/Forecast.h"

namespace outlook {

/// The same without the late fees, which come only if nothing is paid until then.
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

/// Seven days each, the first beginning today; rows before today count in it. The last week may
/// reach beyond the forecast.
std::vector<Week> WeeksOf(const Forecast& forecast);

/// What a page of a calendar says of a day.
struct CalendarDay {
    Sums sums;
    /// What else there is: transfers and days to know of.
    std::vector<std::string> others;
    /// The place of its first row in the forecast.
    std::size_t firstRow = 0;

    /// Returns a few short lines: the money, then what else there is, or how many of them.
    std::vector<std::string> Lines() const;
};

/// Every day that has a row.
std::map<platform::Date, CalendarDay> DaysOf(const Forecast& forecast);

} // namespace outlook
