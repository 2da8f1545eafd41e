#include <algorithm>

#include <fmt/core.h>

#include "books/PostTransaction.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/RentLog.h"
#include "leases/RentPayment.h"
#include "leases/mLease.h"
#include "platform/database/Connection.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Text.h"

namespace leases {

using platform::ConflictError;
using platform::Recordset;

namespace {

bool IsNew(const RentPayment& payment) {
    return payment.idTransaction == 0;
}

/// Who paid or changed a charge since the payment was read decides: the two would pay it twice.
[[noreturn]] void ThrowConflict(const PaymentCharge& charge) {
    Recordset row =
        core::Read("SELECT IdTransaction FROM RentLog WHERE IdRentLog = ?", {charge.idRentLog});
    const bool isPaid = !row.Eof() && IdOf(row["IdTransaction"]) != 0;
    throw ConflictError(fmt::format(
        "The charge \"{}\" of {} was {} after this payment was opened. Nothing was posted.",
        charge.description, charge.datePosted.ToText(),
        row.Eof() ? "deleted"
        : isPaid  ? "paid"
                  : "changed"));
}

bool IsSameCharge(const PaymentCharge& a, const PaymentCharge& b) {
    return a.idRentLog == b.idRentLog && a.amount == b.amount && a.flags == b.flags;
}

void CheckLease(std::int32_t idLease) {
    if (core::App().Connection.Scalar("SELECT IdLease FROM Lease WHERE IdLease = ?", {idLease}))
        return;
    throw ConflictError("The lease was deleted after this payment was opened. Nothing was posted.");
}

/// The payment as the books have it now, read inside the unit of work that posts it. Throws
/// ConflictError if a charge that it settles can't be settled as it was shown, or if it has settled
/// one since that was not shown.
RentPayment CheckUnchanged(const RentPayment& payment) {
    if (IsNew(payment)) CheckLease(payment.idLease);
    RentPayment now = payment;
    ReadCharges(now, OpenCharges::Offer);
    for (const PaymentCharge& charge : payment.charges) {
        if (!charge.selected) continue;
        const bool isThere = std::ranges::any_of(
            now.charges, [&](const auto& other) { return IsSameCharge(charge, other); });
        if (!isThere) ThrowConflict(charge);
    }
    for (const PaymentCharge& settled : now.charges) {
        if (IsNew(payment) || !settled.selected) continue;
        if (std::ranges::find(payment.charges, settled.idRentLog, &PaymentCharge::idRentLog) ==
            payment.charges.end()) {
            throw ConflictError("The payment was changed after it was opened. Nothing was posted.");
        }
    }
    return now;
}

/// A stored payment whose lease was removed keeps the unit and building that it was posted with.
LeaseLinks LinksOf(const RentPayment& payment) {
    const LeaseLinks links = GetLeaseLinks(payment.idLease);
    if (links.idUnit != 0 || IsNew(payment)) return links;
    Recordset row =
        core::Read("SELECT IdTenant, IdUnit, IdBuilding FROM Transactions WHERE IdTransaction = ?",
                   {payment.idTransaction});
    if (row.Eof()) return links;
    return {IdOf(row["IdTenant"]), IdOf(row["IdUnit"]), IdOf(row["IdBuilding"])};
}

books::Transaction TransactionOf(const RentPayment& payment) {
    const LeaseLinks links = LinksOf(payment);
    const platform::Currency total = payment.Total();
    return {.dateEffective = payment.dateEffective,
            .debit = books::Party{payment.fromType, payment.fromId, payment.fromName},
            .credit = books::Party{core::kAccount, payment.toAccount, payment.toName},
            .amount = total,
            .taxCategory = payment.paymentWord,
            .ien = payment.rentClass == RentClass::Deposit ? books::Ien::Unclassified
                                                           : books::Ien::Income,
            .checkNumber = payment.checkNumber,
            .description = std::string(platform::Trim(payment.description)),
            .transactionClass = static_cast<std::int16_t>(payment.rentClass),
            // The payer's id, even if the payer is an account.
            .idTenant = payment.fromId,
            .idBuilding = links.idBuilding,
            .idUnit = links.idUnit,
            .idLease = payment.idLease};
}

std::int32_t WriteTransaction(const RentPayment& payment) {
    if (IsNew(payment)) return books::PostTransaction(TransactionOf(payment));
    books::RewriteTransaction(payment.idTransaction, TransactionOf(payment));
    return payment.idTransaction;
}

/// The next payment proposes the account that took this one.
void RememberAccount(const RentPayment& payment) {
    if (payment.rentClass != RentClass::Rent && payment.rentClass != RentClass::Subsidy) return;
    core::Execute("UPDATE Lease SET RentAccount = ? WHERE IdLease = ?",
                  {payment.toAccount, payment.idLease});
}

/// A stored payment's row takes an amount of 0 too: left as it was, it would be money that nobody
/// paid.
void WritePaymentRow(const RentPayment& payment, std::int32_t idTransaction,
                     std::int32_t idPaymentRow) {
    const RentLogEntry entry = {.idLease = payment.idLease,
                                .idTransaction = idTransaction,
                                .datePosted = payment.dateEffective,
                                .rentClass = payment.rentClass,
                                .category = payment.paymentWord,
                                .amount = -payment.Total(),
                                .description = payment.paymentWord,
                                .flags = RentFlags::Payment};
    if (idPaymentRow != 0 && RewriteRentLog(entry, idPaymentRow)) return;
    WriteRentLog(entry);
}

/// A charge that isn't selected is released by this payment, and stays another's.
void Settle(const PaymentCharge& charge, std::int32_t idTransaction) {
    platform::Connection& books = core::App().Connection;
    if (charge.selected) {
        books.Execute("UPDATE RentLog SET IdTransaction = ? WHERE IdRentLog = ?",
                      {idTransaction, charge.idRentLog});
    } else {
        books.Execute(
            "UPDATE RentLog SET IdTransaction = 0 WHERE IdRentLog = ? AND IdTransaction = ?",
            {charge.idRentLog, idTransaction});
    }
}

void SettleCharges(const RentPayment& payment, std::int32_t idTransaction) {
    const bool moves = IsNew(payment) && payment.rentClass == RentClass::Rent;
    for (const PaymentCharge& charge : payment.charges) {
        Settle(charge, idTransaction);
        if (moves && charge.selected && IsPeriodRent(charge.flags)) {
            AdvanceNextDue(payment.idLease, OptionCredit::Add, Broadcast::No);
        }
    }
}

} // namespace

std::int32_t SubmitPayment(const RentPayment& payment, LeaseUpdate update) {
    platform::UnitOfWork unit(core::App().Connection);
    const RentPayment now = CheckUnchanged(payment);
    const std::int32_t idTransaction = WriteTransaction(payment);
    RememberAccount(payment);
    WritePaymentRow(payment, idTransaction, now.idPaymentRow);
    SettleCharges(payment, idTransaction);
    if (update == LeaseUpdate::Yes) UpdateLeaseById(payment.idLease, WalkMode::CatchUp);
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    core::NotifyAll(core::kLease, core::kRecordsChanged, payment.idLease);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    unit.Commit();
    return idTransaction;
}

} // namespace leases
