#include "alerts/PortfolioPicture.h"

#include <cmath>

#include <fmt/core.h>

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"

namespace alerts {

using platform::Currency;
using platform::Date;
using platform::dialect::QuoteDate;

namespace {

constexpr int kMonths = 12;

/// Runs `work`, which reads a figure; if it fails, the reason becomes the figure's fault.
template <class Figure, class Work>
Figure Gather(Work work) {
    Figure figure;
    try {
        work(figure);
    } catch (const platform::Error& failure) {
        figure = {};
        figure.fault = failure.what();
    }
    return figure;
}

/// Returns the first day of a month; month 0 is the present one.
Date FirstDayOf(int month) {
    const Date today = platform::Today();
    return platform::DateAdd(platform::Interval::Month, month,
                             Date(today.Year(), today.Month(), 1));
}

Date LastDayOfThisMonth() {
    return platform::DateAdd(platform::Interval::Day, -1, FirstDayOf(1));
}

void ReadOccupancy(Occupancy& figure) {
    platform::Recordset rows = core::Read(
        "SELECT Count(*) AS [Units], Sum(IIf(EXISTS (SELECT IdLease FROM Lease "
        "WHERE Lease.IdUnit = Unit.IdUnit "
        "AND Lease.Status IN ('Contracted', 'MTM', 'WTW', 'Notice')), 1, 0)) AS [Occupied] "
        "FROM Unit, Building WHERE Unit.IdBuilding = Building.IdBuilding "
        "AND Unit.Hide = False AND Building.Hide = False");
    if (rows.Eof()) return;
    figure.units = platform::IdOf(rows["Units"]);
    figure.occupied = platform::IdOf(rows["Occupied"]);
}

void ReadRent(MonthsRent& figure) {
    figure.firstDay = FirstDayOf(0);
    platform::Recordset rows =
        core::Read(fmt::format("SELECT Sum(IIf(Flags = 2, 0, Amount)) AS [Charged], "
                               "Sum(IIf(Flags = 2, -Amount, 0)) AS [Collected] FROM RentLog "
                               "WHERE Class IN (1, 2) AND DateValue(DatePosted) BETWEEN {} AND {}",
                               QuoteDate(figure.firstDay), QuoteDate(LastDayOfThisMonth())));
    if (rows.Eof()) return;
    figure.charged = platform::MoneyOf(rows["Charged"]);
    figure.collected = platform::MoneyOf(rows["Collected"]);
}

void ReadFlow(YearsFlow& figure) {
    const Date first = FirstDayOf(1 - kMonths);
    for (int month = 1 - kMonths; month <= 0; ++month)
        figure.months.push_back({FirstDayOf(month), {}, {}});
    platform::Recordset rows = core::Read(fmt::format(
        "SELECT Year(DateValue(DateEffective)) AS [Year], "
        "Month(DateValue(DateEffective)) AS [Month], Sum(IIf(IEN = 0, Amount, 0)) AS [Income], "
        "Sum(IIf(IEN = 1, Amount, 0)) AS [Expenses] FROM Transactions "
        "WHERE DateValue(DateEffective) BETWEEN {} AND {} "
        "GROUP BY Year(DateValue(DateEffective)), Month(DateValue(DateEffective))",
        QuoteDate(first), QuoteDate(LastDayOfThisMonth())));
    for (; !rows.Eof(); rows.MoveNext()) {
        const int at = (platform::IdOf(rows["Year"]) - first.Year()) * kMonths +
                       platform::IdOf(rows["Month"]) - static_cast<int>(first.Month());
        MonthsFlow& month = figure.months.at(static_cast<std::size_t>(at));
        month.income = platform::MoneyOf(rows["Income"]);
        month.expenses = platform::MoneyOf(rows["Expenses"]);
    }
}

void ReadDebts(Debts& figure) {
    platform::Recordset rows = core::Read(
        "SELECT Lease.IdLease, "
        "Tenant.LastName & IIf(Tenant.FirstName <> '', ', ' & Tenant.FirstName, '') AS [Tenant], "
        "Trim(Building.Address & ' ' & Unit.Unit) AS [Property], Sum(Amount) AS [Total] "
        "FROM ((RentLog INNER JOIN Lease ON RentLog.IdLease = Lease.IdLease) "
        "LEFT JOIN Tenant ON Lease.IdTenant = Tenant.IdTenant) "
        "LEFT JOIN (Unit LEFT JOIN Building ON Unit.IdBuilding = Building.IdBuilding) "
        "ON Lease.IdUnit = Unit.IdUnit "
        "WHERE RentLog.IdTransaction = 0 AND RentLog.Class IN (1, 2, 3) "
        "GROUP BY Lease.IdLease, "
        "Tenant.LastName & IIf(Tenant.FirstName <> '', ', ' & Tenant.FirstName, ''), "
        "Trim(Building.Address & ' ' & Unit.Unit) HAVING Sum(Amount) <> 0 "
        "ORDER BY Sum(Amount) DESC");
    for (; !rows.Eof(); rows.MoveNext()) {
        const Currency amount = platform::MoneyOf(rows["Total"]);
        figure.total += amount;
        if (figure.most.size() == kDebtorsShown || amount <= Currency()) continue;
        figure.most.push_back({platform::IdOf(rows["IdLease"]), platform::TextOf(rows["Tenant"]),
                               platform::TextOf(rows["Property"]), amount});
    }
}

} // namespace

PortfolioPicture GetPortfolioPicture() {
    return {Gather<Occupancy>(ReadOccupancy), Gather<MonthsRent>(ReadRent),
            Gather<YearsFlow>(ReadFlow), Gather<Debts>(ReadDebts)};
}

std::string PercentText(Currency part, Currency whole) {
    if (whole <= Currency()) return {};
    return fmt::format("{:.0f} %", std::round(100 * part.ToDouble() / whole.ToDouble()));
}

} // namespace alerts
