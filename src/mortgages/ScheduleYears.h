#pragma once

#include <string>
#include <vector>

#include "mortgages/clsMortgage.h"

namespace mortgages {

/// One point of the schedule drawn by years.
struct YearPoint {
    std::string label; ///< "Year 1"
    double balance = 0;
    double principal = 0; ///< paid since the first period, as is the interest
    double interest = 0;
};

/// The names of the three series, in the order of YearPoint.
inline constexpr std::string_view kYearSeries[] = {"Balance", "Principle TTD", "Interest TTD"};

/// Returns a point per year: the first year is drawn by its first period, each later one by the
/// last period of the year before. Empty without a schedule; a loan shorter than a year has one
/// point.
std::vector<YearPoint> ScheduleYears(const clsMortgage& mortgage);

} // namespace mortgages
