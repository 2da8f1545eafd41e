#include "mortgages/ScheduleYears.h"

#include <algorithm>

#include "platform/values/Conversions.h"

namespace mortgages {

std::vector<YearPoint> ScheduleYears(const clsMortgage& mortgage) {
    std::vector<YearPoint> years;
    if (mortgage.GetPeriods() == 0) return years;
    const int count = platform::RoundToInt16(std::max(mortgage.GetPeriods(), 12.0) / 12);
    for (int year = 1; year <= count; ++year) {
        const int period = year == 1 ? 1 : (year - 1) * 12;
        years.push_back({"Year " + std::to_string(year), mortgage.GetPV(period),
                         mortgage.GetPriTTD(period), mortgage.GetIntTTD(period)});
    }
    return years;
}

} // namespace mortgages
