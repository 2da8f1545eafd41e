#include "outlook/CashFlow.h"

#include <algorithm>

#include <fmt/core.h>

#include "platform/values/Format.h"

namespace outlook {

namespace {

constexpr int kDaysOfWeek = 7;

} // namespace

Forecast WithoutLateFees(const Forecast& forecast) {
    Forecast others{forecast.today, forecast.until, {}, forecast.faults};
    std::ranges::copy_if(forecast.rows, std::back_inserter(others.rows),
                         [](const ForecastRow& row) { return row.origin != Origin::LateFee; });
    return others;
}

void Sums::Add(const ForecastRow& row) {
    if (row.flow == Flow::In) in = in + row.amount;
    if (row.flow == Flow::Out) out = out + row.amount;
}

Sums TotalOf(const Forecast& forecast) {
    Sums total;
    for (const ForecastRow& row : forecast.rows)
        total.Add(row);
    return total;
}

std::vector<Week> WeeksOf(const Forecast& forecast) {
    std::vector<Week> weeks;
    const int first = forecast.today.Serial();
    for (int serial = first; serial <= forecast.until.Serial(); serial += kDaysOfWeek)
        weeks.push_back({platform::Date::FromSerial(serial), {}});
    for (const ForecastRow& row : forecast.rows) {
        const int days = std::max(row.date.Serial() - first, 0);
        weeks.at(static_cast<std::size_t>(days / kDaysOfWeek)).sums.Add(row);
    }
    return weeks;
}

std::vector<std::string> CalendarDay::Lines() const {
    std::vector<std::string> lines;
    if (!sums.in.IsZero()) lines.push_back("In " + platform::FormatMoney(sums.in));
    if (!sums.out.IsZero()) lines.push_back("Out " + platform::FormatMoney(sums.out));
    if (others.size() == 1) lines.push_back(others.front());
    if (others.size() > 1) lines.push_back(fmt::format("{} others", others.size()));
    return lines;
}

std::map<platform::Date, CalendarDay> DaysOf(const Forecast& forecast) {
    std::map<platform::Date, CalendarDay> days;
    for (std::size_t i = 0; i < forecast.rows.size(); ++i) {
        const ForecastRow& row = forecast.rows[i];
        const auto [day, isNew] = days.try_emplace(row.date);
        if (isNew) day->second.firstRow = i;
        day->second.sums.Add(row);
        if (row.flow == Flow::Neither) day->second.others.push_back(row.what);
    }
    return days;
}

} // namespace outlook
