#include "mortgages/clsMortgage.h"

#include <algorithm>

#include "mortgages/Annuity.h"
#include "platform/system/Clock.h"
#include "platform/values/Text.h"

namespace mortgages {

using platform::Date;

namespace {

constexpr double kHighestBalance = 10'000'000;
constexpr double kMostPeriods = 1'200;

std::int16_t NotNegative(std::int16_t number) {
    return std::max<std::int16_t>(number, 0);
}

} // namespace

clsMortgage::clsMortgage() {
    const Date today = platform::Today();
    terms_.FirstDue = Date(today.Year(), today.Month(), 1).ToText();
    ReCalc();
}

void clsMortgage::CreateMtg(std::string_view firstDue, double presentValue, double& periods,
                            double rate, double& payment, bool interestOnly, bool adjustable) {
    if (interestOnly) {
        // A year's interest, negated: callers have always been given that. ReCalc calculates the
        // payment itself.
        payment = presentValue * rate * -1;
    } else if (payment != 0) {
        periods = Annuity(rate / 12).NPer(-payment, presentValue);
    } else {
        payment = -Annuity(rate / 12).Pmt(periods, presentValue);
    }
    SetFirstDue(firstDue);
    terms_.OrigPV = presentValue;
    terms_.OrigPer = periods;
    terms_.OrigRate = rate;
    terms_.OrigPmt = payment;
    terms_.IntOnly = interestOnly;
    terms_.ARM = adjustable;
    arraySize_ = 0;
    xPri_.clear();
    xRate_.clear();
    ReCalc();
}

void clsMortgage::BalanceMtg(Date date, double balance, double rate) {
    const int period = GetPeriod(date);
    if (period < 2 || period > periods_ - 1) return;
    if (rate != terms_.OrigRate) SetRate(period, rate);
    const double paidAhead = GetPV(period) - balance;
    if (paidAhead > 0) SetXPri(period - 1, paidAhead);
    ReCalc();
}

void clsMortgage::SetXPri(int period, double amount) {
    if (period == 0) {
        terms_.xPriAll = amount;
    } else if (period > 0 && period <= arraySize_) {
        const auto index = static_cast<std::size_t>(period) - 1;
        if (xPri_.size() <= index) xPri_.resize(static_cast<std::size_t>(arraySize_), 0);
        xPri_[index] = amount;
    }
}

void clsMortgage::ClearXPri() {
    terms_.xPriAll = 0;
    std::fill(xPri_.begin(), xPri_.end(), 0.0);
}

void clsMortgage::SetMaxRates() {
    if (!terms_.ARM) return;
    const double highest = std::min(terms_.OrigRate + terms_.ARMLifeCap, kHighestRate);
    double rate = terms_.OrigRate;
    int sinceAdjusted = 0;
    const int last = std::min<int>(periods_, static_cast<int>(xRate_.size()));
    for (int i = 1; i <= last; ++i) {
        ++sinceAdjusted;
        const bool adjusted = (terms_.ARMLockedPer == 0 && i == 1) ||
                              i == terms_.ARMLockedPer + 1 ||
                              (i > terms_.ARMLockedPer && sinceAdjusted == terms_.ARMAdjPer);
        if (adjusted) {
            rate = std::min(rate + terms_.ARMPerCap, highest);
            sinceAdjusted = 0;
        }
        xRate_[static_cast<std::size_t>(i) - 1] = rate;
    }
}

void clsMortgage::ClearRate() {
    std::fill(xRate_.begin(), xRate_.end(), terms_.OrigRate);
}

void clsMortgage::SetRate(int period, double rate) {
    if (period < 2 || period > std::min<int>(arraySize_, static_cast<int>(xRate_.size()))) return;
    std::fill(xRate_.begin() + (period - 1), xRate_.end(), std::clamp(rate, 0.0, kHighestRate));
}

void clsMortgage::SetDescription(std::string_view text) {
    terms_.Description = platform::LeftCharacters(text, 50);
}

void clsMortgage::SetCurrentPeriod(int period) {
    const int last = std::max<int>(periods_, 1);
    terms_.CurrentPeriod = static_cast<std::int16_t>(std::clamp(period, 1, last));
}

void clsMortgage::AdvanceCurrentPeriod() {
    ++terms_.CurrentPeriod;
}

void clsMortgage::SetOrigPV(double amount) {
    terms_.OrigPV = std::clamp(amount, 1.0, kHighestBalance);
}

void clsMortgage::SetOrigPer(double periods) {
    terms_.OrigPer = std::clamp(periods, 1.0, kMostPeriods);
}

void clsMortgage::SetOrigRate(double percent) {
    const double rate = std::clamp(percent / 100, 0.0, kHighestRate);
    if (rate == terms_.OrigRate) return;
    terms_.OrigRate = rate;
    ClearRate();
}

void clsMortgage::SetFirstDue(std::string_view text) {
    terms_.FirstDue = platform::LeftCharacters(text, 10);
}

void clsMortgage::SetPPMPct(double percent) {
    terms_.PPMPct = std::clamp(percent / 100, 0.0, 1.0);
}

void clsMortgage::SetPPMTrigger(double percent) {
    terms_.PPMTrigger = std::clamp(percent / 100, 0.0, 1.0);
}

void clsMortgage::SetARMLockedPer(std::int16_t periods) {
    terms_.ARMLockedPer = NotNegative(periods);
}

void clsMortgage::SetARMAdjPer(std::int16_t periods) {
    terms_.ARMAdjPer = NotNegative(periods);
}

void clsMortgage::SetARMLifeCap(double percent) {
    terms_.ARMLifeCap = std::max(percent / 100, 0.0);
}

void clsMortgage::SetARMPerCap(double percent) {
    terms_.ARMPerCap = std::max(percent / 100, 0.0);
}

} // namespace mortgages
