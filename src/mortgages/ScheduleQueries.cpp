#include <algorithm>

#include "core/Codes.h"
#include "mortgages/MortgageCodes.h"
#include "mortgages/clsMortgage.h"
#include "platform/system/Clock.h"

namespace mortgages {

using platform::Currency;
using platform::Date;

namespace {

/// Returns what `read` gives for the last row that is due in the year; 0 if there is none.
template <class Read>
double OfYear(const std::vector<AmortPeriod>& schedule, std::string_view year, Read read) {
    const std::string present = std::to_string(platform::Today().Year());
    if (year.empty()) year = present;
    const auto row = std::find_if(schedule.rbegin(), schedule.rend(),
                                  [&](const AmortPeriod& at) { return at.Due.Year() == year; });
    return row == schedule.rend() ? 0 : read(*row);
}

Currency Money(const AmortPeriod* row, double AmortPeriod::*amount) {
    return row == nullptr ? Currency() : Currency::FromDouble(row->*amount);
}

} // namespace

const AmortPeriod* clsMortgage::Row(int period) const {
    if (period == 0) period = terms_.CurrentPeriod;
    if (period < 1 || static_cast<std::size_t>(period) > schedule_.size()) return nullptr;
    return &schedule_[static_cast<std::size_t>(period) - 1];
}

const AmortPeriod* clsMortgage::RowUpTo(int period) const {
    if (period == 0) period = terms_.CurrentPeriod;
    return Row(period < 1 ? -1 : std::min(period, static_cast<int>(schedule_.size())));
}

int clsMortgage::PeriodOf(Date date) const {
    return DateDiff(platform::Interval::Month, Date::Parse(terms_.FirstDue), date) + 1;
}

double clsMortgage::GetXPRI(int period) const {
    if (period == 0) return terms_.xPriAll;
    if (period < 0 || period > arraySize_) return 0;
    const auto index = static_cast<std::size_t>(period) - 1;
    return index < xPri_.size() ? xPri_[index] : 0;
}

double clsMortgage::GetRate(int period) const {
    if (period == 0) period = terms_.CurrentPeriod;
    if (Row(period < 1 ? -1 : period) == nullptr) return 0;
    if (!terms_.ARM) return 100 * terms_.OrigRate;
    const auto index = static_cast<std::size_t>(period) - 1;
    return index < xRate_.size() ? 100 * xRate_[index] : 0;
}

Date clsMortgage::NextDue() const {
    const AmortPeriod* row = Row(0);
    return row == nullptr ? Date() : Date::Parse(row->Due.View());
}

double clsMortgage::GetPV(int period) const {
    const AmortPeriod* row = Row(period);
    return row == nullptr ? 0 : row->BeginBal;
}

double clsMortgage::GetPriTTD(int period) const {
    const AmortPeriod* row = RowUpTo(period);
    return row == nullptr ? 0 : row->PriTTD;
}

double clsMortgage::GetIntTTD(int period) const {
    const AmortPeriod* row = RowUpTo(period);
    return row == nullptr ? 0 : row->IntTTD;
}

double clsMortgage::GetIntYTD(std::string_view year) const {
    return OfYear(schedule_, year, [](const AmortPeriod& row) { return row.IntYTD; });
}

double clsMortgage::GetPriYTD(std::string_view year) const {
    return OfYear(schedule_, year, [](const AmortPeriod& row) { return row.PriYTD; });
}

std::string_view clsMortgage::GetStatus(Date date) const {
    const int period = PeriodOf(date);
    if (period < 1) return core::kMortgagePending;
    return period <= periods_ ? core::kMortgageCurrent : core::kMortgageClosed;
}

Currency clsMortgage::GetPPMT(int period) const {
    return Money(Row(period), &AmortPeriod::Pri);
}

Currency clsMortgage::GetPMT(int period) const {
    return Money(Row(period), &AmortPeriod::Pmt);
}

Currency clsMortgage::GetIPMT(int period) const {
    return Money(Row(period), &AmortPeriod::Int);
}

int clsMortgage::GetPeriod(Date date) const {
    const int period = PeriodOf(date);
    return period >= 1 && period <= periods_ ? period : 0;
}

} // namespace mortgages
