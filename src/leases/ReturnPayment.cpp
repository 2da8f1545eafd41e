#include "leases/ReturnPayment.h"

#include <algorithm>
#include <limits>

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

/// Reads the payment's row. Throws Error if it can't be returned.
Recordset ReadReturnable(std::int32_t idTransaction) {
    Recordset row =
        core::Read("SELECT * FROM Transactions WHERE IdTransaction = ?", {idTransaction});
    if (row.Eof()) throw platform::Error(fmt::format("There is no transaction {}", idTransaction));
    const auto code = core::TransactionClass{ShortOf(row["Class"])};
    if (core::LedgerOf(code) != core::Ledger::Rent || ShortOf(row["Flags"]) != 0) {
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

/// Returns the day of the oldest rent that is open again; unset if there is none.
Date OldestRent(const PaymentReturn& returned) {
    Date oldest;
    const auto add = [&](const PaymentCharge& charge) {
        if (!IsPeriodRent(charge.flags)) return;
        if (!oldest.IsSet() || charge.datePosted < oldest) oldest = charge.datePosted;
    };
    std::ranges::for_each(returned.payment.charges, add);
    for (const CreditSpending& spending : returned.spendings)
        std::ranges::for_each(spending.charges, add, &ReopenedCharge::charge);
    return oldest;
}

/// Returns the highest id that an option credit earned by a payment can have. Option credits follow
/// the payment's own row, one for each rent. If the payment settled its rents by credit, it has no
/// row, and events that waited for it may have posted rows in between; the next payment of a rent
/// has option credits of its own.
std::int32_t LastOptionCredit(std::int32_t idLease, std::int32_t idTransaction,
                              std::int32_t idPaymentRow, int rents) {
    if (idPaymentRow != 0) return idPaymentRow + rents;
    const auto next = core::ReadValue(
        "SELECT Min(IdTransaction) FROM RentLog WHERE (IdLease = ?) AND (IdTransaction > ?) AND "
        "(Class = 1) AND (Flags = 1)",
        {idLease, idTransaction});
    return next.IsNull() ? std::numeric_limits<std::int32_t>::max() : next.AsLong();
}

/// Returns the option credits that a payment earned for so many rents. If it has no row of its own,
/// their description distinguishes them from the credits that the user has entered since.
Currency OptionCreditOf(std::int32_t idLease, std::int32_t idTransaction, std::int32_t idPaymentRow,
                        int rents) {
    Currency total;
    if (rents == 0) return total;
    Recordset rows = core::Read(
        "SELECT Amount, Description FROM RentLog WHERE (IdLease = ?) AND (Class = 4) AND "
        "(Flags = 0) AND (Category = ?) AND (Amount > 0) AND (IdRentLog > ?) AND "
        "(IdRentLog <= ?) ORDER BY IdRentLog",
        {idLease, kCategoryOptionCredit, idPaymentRow != 0 ? idPaymentRow : idTransaction,
         LastOptionCredit(idLease, idTransaction, idPaymentRow, rents)});
    for (; !rows.Eof() && rents > 0; rows.MoveNext()) {
        if (idPaymentRow == 0 && TextOf(rows["Description"]) != kCategoryOptionCredit) continue;
        total += MoneyOf(rows["Amount"]);
        --rents;
    }
    return total;
}

Currency OptionCreditOf(const PaymentReturn& returned) {
    const RentPayment& payment = returned.payment;
    Currency total = OptionCreditOf(payment.idLease, payment.idTransaction, payment.idPaymentRow,
                                    CountPeriodRents(payment));
    for (const CreditSpending& spending : returned.spendings)
        total += OptionCreditOf(payment.idLease, spending.idTransaction, spending.idPaymentRow,
                                CountPeriodRents(spending));
    return total;
}

/// Counts the rents that are open again.
int CountRents(const PaymentReturn& returned) {
    int rents = CountPeriodRents(returned.payment);
    if (returned.payment.rentClass != TransactionClass::Rent) return rents;
    for (const CreditSpending& spending : returned.spendings)
        rents += CountPeriodRents(spending);
    return rents;
}

} // namespace

PaymentReturn ProposeReturn(std::int32_t idTransaction) {
    Recordset row = ReadReturnable(idTransaction);
    PaymentReturn returned;
    returned.amount = MoneyOf(row["Amount"]);
    returned.payment = ReadPayment(idTransaction);
    returned.date = platform::Today();
    returned.spendings = ReadSpendings(returned.payment);
    const int rents = CountRents(returned);
    if (rents == 0) return returned;
    Recordset lease = core::Read("SELECT TermType, DateNextDue FROM Lease WHERE IdLease = ?",
                                 {returned.payment.idLease});
    returned.dueNow = DateOf(lease["DateNextDue"]);
    if (returned.dueNow.IsSet()) {
        returned.dueAfter =
            DueBefore(TextOf(lease["TermType"]), returned.dueNow, rents, OldestRent(returned));
    }
    returned.optionCredit = OptionCreditOf(returned);
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
