#include "sumdesk/LoanSum.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include <fmt/core.h>

#include "mortgages/Annuity.h"
#include "platform/values/Conversions.h"
#include "platform/values/Text.h"
#include "sumdesk/Counts.h"
#include "sumdesk/Sum.h"

namespace sumdesk {

using mortgages::Annuity;

namespace {

constexpr int kMostMonths = 1'200;
constexpr double kHighestPercent = 100;
constexpr int kMonthsOfYear = 12;
constexpr double kPercent = 100;
/// Anything less is only a rounding error of the formulas, not a payment or a balance.
constexpr double kNothing = 0.00005;

Exact NumberOf(std::string_view text, LoanField field, const char* missing) {
    if (platform::Trim(text).empty()) throw LoanError(missing, field);
    try {
        return WorkOut(text).number;
    } catch (const SumError& fault) {
        throw LoanError(fault.what(), field);
    }
}

double Money(std::string_view text, LoanField field, const char* missing) {
    const Exact number = NumberOf(text, field, missing);
    if (number <= 0) throw LoanError(missing, field);
    return DoubleOf(number);
}

int WholeNumber(std::string_view text, LoanField field, int least, const char* missing) {
    const Exact number = NumberOf(text, field, missing);
    if (number.get_den() != 1 || number < least || number > kMostMonths) {
        throw LoanError(missing, field);
    }
    return static_cast<int>(number.get_num().get_si());
}

double Percent(std::string_view text) {
    constexpr const char* kMissing = "Enter the rate as percent a year, from 0 to 100.";
    text = platform::Trim(text);
    if (text.ends_with('%')) text.remove_suffix(1);
    const Exact number = NumberOf(text, LoanField::Rate, kMissing);
    if (number < 0 || number > kHighestPercent) throw LoanError(kMissing, LoanField::Rate);
    return DoubleOf(number);
}

Annuity Monthly(double percent) {
    return Annuity(percent / kPercent / kMonthsOfYear);
}

void FindPayment(LoanAnswer& loan) {
    loan.payment = -Monthly(loan.rate).Pmt(loan.term, loan.amount);
    loan.lastPayment = loan.payment;
}

void FindRate(LoanAnswer& loan) {
    const double paid = loan.payment * loan.term;
    if (paid < loan.amount - kNothing) {
        throw LoanError(
            fmt::format("{} of {} come to {}, which is less than the loan.",
                        Counted(loan.term, "payment"), MoneyText(loan.payment), MoneyText(paid)),
            LoanField::Payment);
    }
    loan.lastPayment = loan.payment;
    if (paid <= loan.amount) return; // a rate of 0
    const double most = -Monthly(kHighestPercent).Pmt(loan.term, loan.amount);
    if (loan.payment > most) {
        throw LoanError("The rate is higher than 100 percent a year.", LoanField::Payment);
    }
    const Annuity found = Annuity::OfPayment(loan.term, -loan.payment, loan.amount);
    loan.rate = found.Rate() * kMonthsOfYear * kPercent;
}

void FindTerm(LoanAnswer& loan) {
    constexpr double kRounding = 1e-7; // of the formula, so that 360 months stay 360
    const Annuity monthly = Monthly(loan.rate);
    try {
        loan.periods = monthly.NPer(-loan.payment, loan.amount);
    } catch (const platform::Error& failure) {
        throw LoanError(failure.what(), LoanField::Payment);
    }
    const double months = std::ceil(loan.periods - kRounding);
    if (months > kMostMonths) {
        throw LoanError("With these payments the loan takes more than 1,200 months.",
                        LoanField::Payment);
    }
    loan.term = std::max(1, static_cast<int>(months));
    const double before = monthly.PV(loan.periods - (loan.term - 1), -loan.payment);
    loan.lastPayment = before * (1 + monthly.Rate());
}

double BalanceAfter(const LoanAnswer& loan, int payments) {
    if (payments >= loan.term) return 0;
    return Monthly(loan.rate).PV(loan.periods - payments, -loan.payment);
}

std::string RateText(const LoanAnswer& answer) {
    constexpr double kDecimals = 10'000;
    return platform::NumberToText(std::round(answer.rate * kDecimals) / kDecimals);
}

/// Returns a term as text: "360 months (30 years)", "18 months (1 year and 6 months)".
std::string TermText(int months) {
    const int years = months / kMonthsOfYear;
    const int rest = months % kMonthsOfYear;
    std::string text = Counted(months, "month");
    if (years == 0) return text;
    text += " (" + Counted(years, "year");
    if (rest != 0) text += " and " + Counted(rest, "month");
    return text + ")";
}

} // namespace

LoanAnswer WorkOutLoan(const LoanEntries& entries) {
    const auto isGiven = [&](LoanField field) { return entries.find != field; };
    LoanAnswer loan;
    loan.amount =
        Money(entries.amount, LoanField::Amount, "Enter the amount of the loan, more than 0.");
    if (isGiven(LoanField::Rate)) loan.rate = Percent(entries.rate);
    if (isGiven(LoanField::Term)) {
        loan.term = WholeNumber(entries.term, LoanField::Term, 1,
                                "Enter the term in whole months, from 1 to 1,200.");
        loan.periods = loan.term;
    }
    if (isGiven(LoanField::Payment)) {
        loan.payment =
            Money(entries.payment, LoanField::Payment, "Enter the payment a month, more than 0.");
    }
    if (!isGiven(LoanField::Payment)) FindPayment(loan);
    if (!isGiven(LoanField::Rate)) FindRate(loan);
    if (!isGiven(LoanField::Term)) FindTerm(loan);

    if (!platform::Trim(entries.paid).empty()) {
        loan.paid = WholeNumber(entries.paid, LoanField::Paid, 0,
                                "Enter the number of payments made, from 0 to 1,200.");
        if (*loan.paid > loan.term) {
            throw LoanError(fmt::format("The loan has only {}.", Counted(loan.term, "payment")),
                            LoanField::Paid);
        }
        loan.balance = BalanceAfter(loan, *loan.paid);
    }
    return loan;
}

std::string FoundText(const LoanAnswer& answer, LoanField field) {
    switch (field) {
        case LoanField::Rate:
            return RateText(answer);
        case LoanField::Term:
            return std::to_string(answer.term);
        default:
            return MoneyText(answer.payment);
    }
}

std::string Describe(const LoanAnswer& answer) {
    const double paid = answer.payment * (answer.term - 1) + answer.lastPayment;
    std::string text = fmt::format("Loan of {} at {}% a year for {}\n", MoneyText(answer.amount),
                                   RateText(answer), TermText(answer.term));
    text += fmt::format("Payment {} a month", MoneyText(answer.payment));
    const bool lastDiffers = MoneyText(answer.lastPayment) != MoneyText(answer.payment);
    if (lastDiffers) text += fmt::format(", the last one {}", MoneyText(answer.lastPayment));
    text += fmt::format("\nInterest over the whole term {}", MoneyText(paid - answer.amount));
    if (answer.paid) {
        text += fmt::format("\nBalance after {} {}", Counted(*answer.paid, "payment"),
                            MoneyText(answer.balance));
    }
    return text;
}

} // namespace sumdesk
