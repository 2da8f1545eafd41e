#include "mortgages/ExtraPrincipal.h"

#include <algorithm>

#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/values/Format.h"

namespace mortgages {

using platform::Currency;

namespace {

std::string_view const kNothingOwed =
    "Nothing is owed on this mortgage: no extra principal can be "
    "paid.";

const PaymentCharge* LastBaseSelected(const MortgagePayment& payment) {
    const auto found = std::find_if(
        payment.charges.rbegin(), payment.charges.rend(),
        [](const PaymentCharge& charge) { return charge.selected && charge.IsBasePayment(); });
    return found == payment.charges.rend() ? nullptr : &*found;
}

MortgageLogEntry EntryOf(const MortgagePayment& payment, std::int32_t idTransaction,
                         std::int16_t period) {
    MortgageLogEntry entry;
    entry.idMortgage = payment.idMortgage;
    entry.idTransaction = idTransaction;
    entry.period = period;
    entry.datePosted = payment.dateEffective;
    entry.category = kCategoryExtra;
    entry.payDown = payment.extraPrincipal;
    entry.description = "Extra Principal Payment";
    return entry;
}

/// Returns the balance left once the period's payment, and the principal booked on it, are paid.
double LeftAfter(const clsMortgage& loan, std::int32_t idMortgage, std::int16_t period,
                 Currency payDown) {
    const AmortPeriod& row = loan.Schedule()[static_cast<std::size_t>(period) - 1];
    return row.BeginBal - row.Pri - (payDown + BookedExtra(idMortgage, period)).ToDouble();
}

} // namespace

std::int16_t PeriodOfExtra(const MortgagePayment& payment) {
    if (const PaymentCharge* const last = LastBaseSelected(payment)) return last->period;
    const platform::Value period = core::ReadValue(
        "SELECT CurrentPeriod FROM Mortgage WHERE IdMortgage = ?", {payment.idMortgage});
    return period.IsNull() ? std::int16_t{1} : period.AsInteger();
}

Currency BookedExtra(std::int32_t idMortgage, std::int16_t period) {
    return platform::AsOr0<Currency>(core::ReadValue(
        "SELECT SUM(PayDown) FROM MortgageLog WHERE IdMortgage = ? AND Period = ? AND Flags = 0 "
        "AND Category = ?",
        {idMortgage, period, kCategoryExtra}));
}

std::string ExtraFault(const MortgagePayment& payment) {
    if (payment.extraPrincipal.IsZero()) return {};
    if (payment.extraPrincipal < Currency()) return "Extra principal cannot be negative.";
    if (payment.idTransaction != 0) return "Extra principal is booked with a new payment.";
    const std::int16_t period = PeriodOfExtra(payment);
    clsMortgage loan;
    if (!LoadWithEntry(loan, payment.idMortgage, period)) return {};
    loan.ReCalc();
    if (period < 1 || period > loan.GetPeriods()) return std::string(kNothingOwed);
    const PaymentCharge* const base = LastBaseSelected(payment);
    const Currency payDown = base == nullptr ? Currency() : base->payDown;
    const Currency left =
        Currency::FromDouble(LeftAfter(loan, payment.idMortgage, period, payDown));
    if (left <= Currency()) return std::string(kNothingOwed);
    constexpr std::int64_t kHalfACent = 50;
    if (payment.extraPrincipal <= left + Currency::FromScaled(kHalfACent)) return {};
    return "Extra principal cannot be more than what is then left of the loan, " +
           platform::FormatMoney(left) + ".";
}

bool LoadWithEntry(clsMortgage& loan, std::int32_t idMortgage, std::int16_t period) {
    if (!loan.LoadMtg(idMortgage)) return false;
    if (period <= loan.ArraySize()) return true;
    // A row can have shorter lists than its loan needs: building the schedule lengthens them.
    loan.ReCalc();
    loan.SaveMtg(idMortgage);
    loan = clsMortgage();
    return loan.LoadMtg(idMortgage);
}

void EnterExtra(clsMortgage& loan, std::int32_t idMortgage, std::int16_t period, Currency payDown) {
    const Currency booked = BookedExtra(idMortgage, period);
    double extra = (payDown + booked).ToDouble();
    // An entry for the period replaces the monthly extra principal.
    if (payDown.IsZero() && !booked.IsZero()) extra += loan.GetXPRI(0);
    loan.SetXPri(period, extra);
}

void BookExtra(const MortgagePayment& payment, std::int32_t idTransaction) {
    if (payment.extraPrincipal.IsZero()) return;
    const std::int16_t period = PeriodOfExtra(payment);
    clsMortgage loan;
    if (!LoadWithEntry(loan, payment.idMortgage, period)) return;
    const double own = loan.GetXPRI(period);
    loan.SetXPri(period, (own == 0 ? loan.GetXPRI(0) : own) + payment.extraPrincipal.ToDouble());
    loan.SaveMtg(payment.idMortgage);
    WriteMortgageLog(EntryOf(payment, idTransaction, period));
}

void LeaveOutBooked(std::int32_t idMortgage, std::vector<Charge>& charges) {
    for (Charge& charge : charges) {
        if (charge.flags != LogFlags::BasePayment || charge.payDown <= Currency()) continue;
        charge.payDown =
            std::max(Currency(), charge.payDown - BookedExtra(idMortgage, charge.period));
    }
}

} // namespace mortgages
