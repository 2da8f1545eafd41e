#include "books/clsDepreciation.h"

#include <algorithm>

#include <fmt/core.h>

#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Date.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace books {

using platform::Currency;
using platform::Date;

namespace {

/// Percent of the basis in the first year, by the month placed in service: a building counts from
/// the middle of its month.
constexpr std::array<double, 12> kFirstYear = {3.485, 3.182, 2.879, 2.576, 2.273, 1.97,
                                               1.667, 1.364, 1.061, 0.758, 0.455, 0.152};
constexpr double kLaterYear = 3.636;
constexpr unsigned kLastMonthOfShortSchedule = 6;
constexpr int kShortSchedule = 28;
constexpr int kLongSchedule = 29;
constexpr std::string_view kMethodUsed = "Straight Line";

Currency Share(double percent, double basis) {
    return Currency::FromDouble(percent * basis * 0.01);
}

} // namespace

void clsDepreciation::Init() {
    if (platform::Trim(startDate_).empty()) startDate_ = platform::Today().ToText();
    const Date start = Date::Parse(startDate_);
    const int periods = start.Month() <= kLastMonthOfShortSchedule ? kShortSchedule : kLongSchedule;

    schedule_.clear();
    Date periodEnd(start.Year(), 12, 31);
    Currency value = Currency::FromDouble(basis_);
    Currency loss = Share(kFirstYear.at(start.Month() - 1), basis_);
    const Currency laterLoss = Share(kLaterYear, basis_);
    for (int period = 1; period <= periods; ++period) {
        if (period > 1) {
            periodEnd = platform::DateAdd(platform::Interval::Year, 1, periodEnd);
            loss = std::min(laterLoss, value);
        }
        schedule_.push_back(
            {periodEnd.ToText(), value, loss, value - loss, std::string(kMethodUsed)});
        value -= loss;
    }
}

float clsDepreciation::TotalDepreciation(std::string_view year) {
    Init();
    const auto wanted = platform::TryParseNumber(year);
    if (!wanted) return 0;
    for (const DepreciationPeriod& period : schedule_) {
        if (Date::Parse(period.PeriodEnd).Year() == *wanted)
            return static_cast<float>(period.Loss.ToDouble());
    }
    return 0;
}

std::array<std::string, clsDepreciation::kColumns.size()> clsDepreciation::GridRow(
    std::size_t row) const {
    const DepreciationPeriod& period = schedule_.at(row);
    return {std::to_string(row + 1),
            period.PeriodEnd,
            platform::FormatMoney(period.StartValue),
            platform::FormatMoney(period.Loss),
            platform::FormatMoney(period.EndValue),
            period.MethodUsed};
}

std::string clsDepreciation::GetClip() const {
    std::string text = "Period Ending|Beginning Of Period|Period Loss|End Of Period|Method Used";
    for (const DepreciationPeriod& period : schedule_) {
        text += fmt::format(";{}|{}|{}|{}|{}", period.PeriodEnd,
                            platform::FormatMoney(period.StartValue),
                            platform::FormatMoney(period.Loss),
                            platform::FormatMoney(period.EndValue), period.MethodUsed);
    }
    return text;
}

} // namespace books
