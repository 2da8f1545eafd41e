#include "leases/ReturnPayment.h"

#include <algorithm>

#include <fmt/core.h>

#include "books/TransactionRow.h"
#include "core/Codes.h"
#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/ChargeEditor.h"
#include "leases/Credits.h"
#include "leases/DueMove.h"
#include "leases/ReturnRows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"

namespace leases {

using platform::Currency;
using platform::Date;
using platform::Recordset;

namespace {

/// The payment's row. Throws Error if it is no payment that can be returned.
Recordset ReadReturnable(std::int32_t idTransaction) {
    Recordset row =
        core::Read("SELECT * FROM Transactions WHERE IdTransaction = ?", {idTransaction});
    if (row.Eof()) throw platform::Error(fmt::format("There is no transaction {}", idTransaction));
    const auto code = core::TransactionClass{CountOf(row["Class"])};
    if (core::LedgerOf(code) != core::Ledger::Rent || CountOf(row["Flags"]) != 0) {
        throw platform::Error(
            fmt::format("Transaction {} is not a payment of a lease", idTransaction));
    }
    if (MoneyOf(row["Amount"]) <= Currency()) {
        throw platform::Error(
            fmt::format("Transaction {} brought no money that could be returned", idTransaction));
    }
    if (const std::int32_t idReturn = ReturnOf(idTransaction); idReturn != 0) {
        throw platform::Error(fmt::format("Transaction {} was returned already, by transaction {}",
                                          idTransaction, idReturn));
    }
    if (!core::RecordExists(core::kLease, IdOf(row["IdLease"]))) {
        throw platform::Error(
            fmt::format("The lease of transaction {} was deleted", idTransaction));
    }
    return row;
}

Date OldestRent(const RentPayment& payment) {
    const auto rent = std::ranges::find_if(
        payment.charges, [](const PaymentCharge& charge) { return IsPeriodRent(charge.flags); });
    return rent == payment.charges.end() ? Date() : rent->datePosted;
}

/// The credits that the payment earned have the numbers after its own row, a rent each.
Currency OptionCreditOf(const RentPayment& payment, int rents) {
    if (payment.idPaymentRow == 0) return {};
    return platform::AsOr0<Currency>(core::ReadValue(
        "SELECT Sum(Amount) FROM RentLog WHERE (IdLease = ?) AND (Class = 4) AND (Flags = 0) AND "
        "(Category = ?) AND (IdRentLog > ?) AND (IdRentLog <= ?)",
        {payment.idLease, kCategoryOptionCredit, payment.idPaymentRow,
         payment.idPaymentRow + rents}));
}

} // namespace

PaymentReturn ProposeReturn(std::int32_t idTransaction) {
    Recordset row = ReadReturnable(idTransaction);
    PaymentReturn returned;
    returned.amount = MoneyOf(row["Amount"]);
    returned.payment = ReadPayment(idTransaction);
    returned.date = platform::Today();
    const int rents = CountPeriodRents(returned.payment);
    if (rents == 0) return returned;
    Recordset lease = core::Read("SELECT TermType, DateNextDue FROM Lease WHERE IdLease = ?",
                                 {returned.payment.idLease});
    returned.dueNow = DateOf(lease["DateNextDue"]);
    if (returned.dueNow.IsSet()) {
        returned.dueAfter = DueBefore(TextOf(lease["TermType"]), returned.dueNow, rents,
                                      OldestRent(returned.payment));
    }
    returned.optionCredit = OptionCreditOf(returned.payment, rents);
    return returned;
}

std::vector<std::string> ReturnErrors(const PaymentReturn& returned) {
    std::vector<std::string> lines;
    const Date paid = returned.payment.dateEffective;
    if (!returned.date.IsSet()) {
        lines.emplace_back("The day of the return must be entered.");
    } else if (paid.IsSet() && returned.date < paid) {
        lines.push_back("The payment was made on " + paid.ToText() +
                        " and can't be returned before.");
    }
    if (returned.fee < Currency()) lines.emplace_back("The fee can't be less than zero.");
    if (returned.fee != InCents(returned.fee))
        lines.emplace_back("The fee must be in whole cents.");
    if (returned.dueNow.IsSet() && !returned.dueAfter.IsSet())
        lines.emplace_back("A next due date must be specified.");
    return lines;
}

PreviewRows PreviewReturn(const PaymentReturn& returned) {
    if (!ReturnErrors(returned).empty()) return {};
    return RowsOf(PlanReturn(returned, removal::OriginsOf(returned.payment.idTransaction)));
}

} // namespace leases
