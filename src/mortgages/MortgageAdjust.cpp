#include "mortgages/MortgageAdjust.h"

#include <algorithm>

#include <fmt/core.h>

namespace mortgages {

using platform::Currency;

namespace {

void AddRateErrors(std::vector<std::string>& errors, double rate) {
    if (rate < 0) errors.emplace_back("Interest rate cannot be a negative value.");
    if (rate > kHighestRate) errors.emplace_back("Interest rate cannot be above 30 percent.");
}

void AddPeriodErrors(std::vector<std::string>& errors, const clsMortgage& loan, int period) {
    if (period <= 0) {
        errors.emplace_back("Period number cannot be zero (or less than).");
    } else if (period > loan.GetPeriods()) {
        errors.push_back(fmt::format("The loan has only {} payments.", loan.GetPeriods()));
    }
}

void Make(clsMortgage& loan, const RateFrom& adjustment) {
    loan.SetRate(adjustment.period, adjustment.rate);
}

void Make(clsMortgage& loan, const LenderBalance& adjustment) {
    loan.BalanceMtg(adjustment.day, adjustment.balance.ToDouble(), adjustment.rate);
}

/// Changes the extra principal from a period on. The monthly extra principal becomes an entry of
/// each earlier period, to which it still applies.
void Make(clsMortgage& loan, const ExtraFrom& adjustment) {
    const double before = loan.GetXPRI(0);
    loan.SetXPri(0, 0);
    for (int period = 1; period < adjustment.period; ++period) {
        if (loan.GetXPRI(period) == 0) loan.SetXPri(period, before);
    }
    for (int period = adjustment.period; period <= loan.ArraySize(); ++period)
        loan.SetXPri(period, adjustment.amount.ToDouble());
}

void Make(clsMortgage& loan, const WithoutExtra& adjustment) {
    loan.SetXPri(adjustment.period, 0);
}

void Make(clsMortgage& loan, const MovePeriod& adjustment) {
    loan.SetCurrentPeriod(loan.CurrentPeriod() + adjustment.periods);
}

} // namespace

void Adjust(clsMortgage& loan, const Adjustment& adjustment) {
    std::visit([&loan](const auto& made) { Make(loan, made); }, adjustment);
    loan.ReCalc();
}

std::vector<std::string> AdjustErrors(const clsMortgage& loan, const RateFrom& adjustment) {
    std::vector<std::string> errors;
    AddRateErrors(errors, adjustment.rate);
    AddPeriodErrors(errors, loan, adjustment.period);
    if (adjustment.period == 1) {
        errors.emplace_back(
            "The first payment always has the first rate: enter a period from 2 on.");
    }
    return errors;
}

std::vector<std::string> AdjustErrors(const clsMortgage& loan, const LenderBalance& adjustment) {
    std::vector<std::string> errors;
    const int period = loan.GetPeriod(adjustment.day);
    if (adjustment.balance >= Currency::FromDouble(loan.GetPV(period)))
        errors.emplace_back("New balance must be lower than previous balance.");
    AddRateErrors(errors, adjustment.rate);
    if (!adjustment.day.IsSet()) return errors;
    if (period == 0) {
        errors.emplace_back("No payment of the loan is due in the month of this date.");
    } else if (period == 1) {
        errors.emplace_back(
            "The first payment is due on this date: no extra principal can have "
            "been paid before it.");
    } else if (period == loan.GetPeriods()) {
        errors.emplace_back("The last payment is due on this date: use Pay Off instead.");
    }
    return errors;
}

std::vector<std::string> AdjustErrors(const clsMortgage& loan, const ExtraFrom& adjustment) {
    std::vector<std::string> errors;
    AddPeriodErrors(errors, loan, adjustment.period);
    if (adjustment.amount < Currency()) errors.emplace_back("Extra principal cannot be negative.");
    return errors;
}

std::vector<ExtraEntry> ExtraEntries(const clsMortgage& loan) {
    std::vector<ExtraEntry> entries;
    int period = 0;
    for (const AmortPeriod& row : loan.Schedule()) {
        ++period;
        const double extra = loan.GetXPRI(period);
        if (extra == 0) continue;
        entries.push_back(
            {period, platform::Date::Parse(row.Due.View()), Currency::FromDouble(extra)});
    }
    return entries;
}

} // namespace mortgages
