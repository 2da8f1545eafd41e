#include <algorithm>

#include <fmt/core.h>

#include "core/ChargeLedger.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/Credits.h"
#include "leases/RentLog.h"
#include "leases/RentPayment.h"
#include "leases/mLease.h"
#include "platform/database/Connection.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Text.h"
#include "removal/RentCredits.h"

namespace leases {

using platform::ConflictError;
using platform::Recordset;

namespace {

/// Someone else has paid or changed a charge since the payment was read; submitting would pay it
/// twice.
[[noreturn]] void ThrowConflict(const RentPayment& payment, const PaymentCharge& charge) {
    const auto settledBy = core::SettledBy(core::kRentLedger, charge.idRentLog);
    throw ConflictError(fmt::format(
        "The charge \"{}\" of {} was {} after this payment was opened. Nothing was posted.",
        charge.description, charge.datePosted.ToText(),
        !settledBy                                               ? "deleted"
        : *settledBy != 0 && *settledBy != payment.idTransaction ? "paid"
                                                                 : "changed"));
}

[[noreturn]] void ThrowPaymentChanged() {
    throw ConflictError("The payment was changed after it was opened. Nothing was posted.");
}

void CheckLease(std::int32_t idLease) {
    if (core::RecordExists(core::kLease, idLease)) return;
    throw ConflictError("The lease was deleted after this payment was opened. Nothing was posted.");
}

/// Refuses other charges for the two sides of a returned payment, which stay as they were posted;
/// their texts can be edited.
void CheckReturn(const RentPayment& payment) {
    if (ReturnOf(payment.idTransaction) == 0 && PaymentReturnedBy(payment.idTransaction) == 0)
        return;
    const bool isSame = std::ranges::all_of(payment.charges, [](const PaymentCharge& charge) {
        return charge.selected == charge.settled;
    });
    if (isSame) return;
    throw ConflictError(
        "The payment was returned, so its charges can't be changed. Nothing was posted.");
}

/// Returns the payment's references. A stored payment whose lease was removed keeps the unit and
/// building that it was posted with.
books::References LinksOf(const RentPayment& payment) {
    books::References links = GetLeaseLinks(payment.idLease);
    if (links.idUnit != 0 || payment.IsNew()) return links;
    Recordset row =
        core::Read("SELECT IdUnit, IdBuilding FROM Transactions WHERE IdTransaction = ?",
                   {payment.idTransaction});
    if (row.Eof()) return links;
    links.idUnit = IdOf(row["IdUnit"]);
    links.idBuilding = IdOf(row["IdBuilding"]);
    return links;
}

/// Stores the account that received this payment; the next payment proposes it.
void RememberAccount(const RentPayment& payment) {
    if (payment.rentClass != TransactionClass::Rent &&
        payment.rentClass != TransactionClass::Subsidy)
        return;
    core::Execute("UPDATE Lease SET RentAccount = ? WHERE IdLease = ?",
                  {payment.to.id, payment.idLease});
}

/// A stored payment's row is written even for an amount of 0: left unchanged, it would be money
/// that nobody paid.
void WritePaymentRow(const RentPayment& payment, std::int32_t idTransaction,
                     std::int32_t idPaymentRow) {
    const RentLogEntry entry = {.idLease = payment.idLease,
                                .idTransaction = idTransaction,
                                .datePosted = payment.dateEffective,
                                .rentClass = payment.rentClass,
                                .category = payment.paymentType,
                                .amount = -payment.Total(),
                                .description = payment.paymentType,
                                .flags = RentFlags::Payment};
    if (idPaymentRow != 0 && RewriteRentLog(entry, idPaymentRow)) return;
    WriteRentLog(entry);
}

void SettleCharges(const RentPayment& payment, std::int32_t idTransaction) {
    const bool moves = payment.IsNew() && payment.rentClass == TransactionClass::Rent;
    for (const PaymentCharge& charge : payment.charges) {
        core::Settle(core::kRentLedger, charge.idRentLog, idTransaction,
                     charge.selected ? core::Settled::Yes : core::Settled::No);
        if (moves && charge.selected && IsPeriodRent(charge.flags)) {
            AdvanceNextDue(payment.idLease, OptionCredit::Add, Broadcast::No);
        }
    }
}

} // namespace

bool IsSameCharge(const PaymentCharge& a, const PaymentCharge& b) {
    return a.idRentLog == b.idRentLog && a.amount == b.amount && a.flags == b.flags;
}

RentPayment CheckUnchanged(const RentPayment& payment) {
    payment.IsNew() ? CheckLease(payment.idLease) : CheckReturn(payment);
    RentPayment now = payment;
    ReadCharges(now, OpenCharges::Offer);
    const bool isStored =
        !payment.IsNew() && core::RecordExists(core::kTransaction, payment.idTransaction);
    for (const PaymentCharge& charge : payment.charges) {
        if (!charge.selected) continue;
        const auto same = std::ranges::find_if(
            now.charges, [&](const auto& other) { return IsSameCharge(charge, other); });
        if (same == now.charges.end()) ThrowConflict(payment, charge);
        // Another edit of the payment has reopened it. A deleted payment has reopened all of its
        // charges, and is posted again.
        if (isStored && charge.settled && !same->settled) ThrowPaymentChanged();
    }
    for (const PaymentCharge& settled : now.charges) {
        if (!settled.settled) continue;
        const auto shown =
            std::ranges::find(payment.charges, settled.idRentLog, &PaymentCharge::idRentLog);
        if (shown == payment.charges.end() || (!shown->selected && !shown->settled))
            ThrowPaymentChanged();
    }
    return now;
}

books::Transaction TransactionOf(const RentPayment& payment) {
    books::Transaction transaction = books::TransactionOf(payment, payment.Total());
    transaction.ien = payment.rentClass == TransactionClass::Deposit ? books::Ien::Unclassified
                                                                     : books::Ien::Income;
    transaction.description = platform::Trim(payment.description);
    if (ReturnOf(payment.idTransaction) != 0) {
        transaction.description =
            removal::KeepReturnMark(payment.idTransaction, transaction.description);
    }
    transaction.transactionClass = static_cast<std::int16_t>(payment.rentClass);
    static_cast<books::References&>(transaction) = LinksOf(payment);
    // The payer's id, even if the payer is an account.
    transaction.idTenant = payment.from.id;
    return transaction;
}

std::int32_t SubmitPayment(const RentPayment& payment, LeaseUpdate update) {
    platform::UnitOfWork unit(core::App().Connection);
    const RentPayment now = CheckUnchanged(payment);
    const std::int32_t idTransaction = books::StoreTransaction(payment, TransactionOf(payment));
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
