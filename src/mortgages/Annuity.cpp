#include "mortgages/Annuity.h"

#include <cmath>

#include "platform/values/Errors.h"

namespace mortgages {

namespace {

double Finite(double number) {
    if (!std::isfinite(number)) throw platform::OverflowError("The loan's figures are too large.");
    return number;
}

} // namespace

// Uses log1p and expm1 instead of a power: at low rates, and towards the end of a loan, one plus
// the rate and one minus the discount lose too many digits.
Annuity::Annuity(double rate) : rate_(rate), logGrowth_(std::log1p(rate)) {
    if (rate <= -1) throw platform::Error("The rate must be above -100 percent.");
}

double Annuity::Pmt(double periods, double presentValue) const {
    if (periods == 0) throw platform::Error("The loan needs at least one period.");
    if (rate_ == 0) return Finite(-presentValue / periods);
    return Finite(presentValue * rate_ / std::expm1(-periods * logGrowth_));
}

double Annuity::NPer(double payment, double presentValue) const {
    if (payment == 0) throw platform::Error("A payment of zero doesn't pay off a loan.");
    if (rate_ == 0) return Finite(-presentValue / payment);
    const double interestShare = presentValue * rate_ / payment;
    if (interestShare <= -1) {
        throw platform::Error("The payment is too small to pay off the loan.");
    }
    return Finite(-std::log1p(interestShare) / logGrowth_);
}

Annuity Annuity::OfPayment(double periods, double payment, double presentValue) {
    // There is no formula for the rate. A higher rate always means a higher payment, so it is found
    // by narrowing an interval.
    constexpr double kHighest = 1;
    double low = 0;
    double high = kHighest;
    const auto isEnough = [&](double rate) {
        return -Annuity(rate).Pmt(periods, presentValue) <= -payment;
    };
    if (!isEnough(low)) throw platform::Error("The payments don't even pay back the loan.");
    if (isEnough(high)) throw platform::Error("The payments are too large for any rate.");
    for (double middle = 0.5; middle > low && middle < high; middle = low + (high - low) / 2) {
        (isEnough(middle) ? low : high) = middle;
    }
    return Annuity(low);
}

double Annuity::PV(double periods, double payment) const {
    if (periods <= 0) return 0;
    if (rate_ == 0) return Finite(-payment * periods);
    return Finite(payment * std::expm1(-periods * logGrowth_) / rate_);
}

double Annuity::FirstIPmt(double presentValue) const {
    return -presentValue * rate_;
}

double Annuity::FirstPPmt(double periods, double presentValue) const {
    return Pmt(periods, presentValue) - FirstIPmt(presentValue);
}

} // namespace mortgages
