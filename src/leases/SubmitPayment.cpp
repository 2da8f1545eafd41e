#include "leases/RentPayment.h"

#include "books/PostTransaction.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/RentLog.h"
#include "leases/mLease.h"
#include "platform/database/Connection.h"

namespace leases {

namespace {

books::Transaction TransactionOf(const RentPayment& payment) {
    const LeaseLinks links = GetLeaseLinks(payment.idLease);
    return {.dateEffective = payment.dateEffective,
            .debit = {payment.fromType, payment.fromId, payment.fromName},
            .credit = {core::kAccount, payment.toAccount, payment.toName},
            .amount = payment.Total(),
            .taxCategory = payment.paymentWord,
            .ien = payment.rentClass == RentClass::Deposit ? books::Ien::Unclassified
                                                           : books::Ien::Income,
            .checkNumber = payment.checkNumber,
            .description = payment.description,
            .transactionClass = static_cast<std::int16_t>(payment.rentClass),
            // The payer's id stands here even where the payer is an account.
            .idTenant = payment.fromId,
            .idBuilding = links.idBuilding,
            .idUnit = links.idUnit,
            .idLease = payment.idLease};
}

std::int32_t WriteTransaction(const RentPayment& payment) {
    if (payment.idTransaction == 0) return books::PostTransaction(TransactionOf(payment));
    books::RewriteTransaction(payment.idTransaction, TransactionOf(payment));
    return payment.idTransaction;
}

/// The next payment proposes the account that took this one.
void RememberAccount(const RentPayment& payment) {
    if (payment.rentClass != RentClass::Rent && payment.rentClass != RentClass::Subsidy) return;
    core::App().Connection.Execute("UPDATE Lease SET RentAccount = ? WHERE IdLease = ?",
                                   {payment.toAccount, payment.idLease});
}

/// A stored payment's row takes an amount of 0 too: left as it was, it would be money that nobody
/// paid.
void WritePaymentRow(const RentPayment& payment, std::int32_t idTransaction) {
    const RentLogEntry entry = {.idLease = payment.idLease,
                                .idTransaction = idTransaction,
                                .datePosted = payment.dateEffective,
                                .rentClass = payment.rentClass,
                                .category = payment.paymentWord,
                                .amount = -payment.Total(),
                                .description = payment.paymentWord,
                                .flags = RentFlags::Payment};
    if (payment.idPaymentRow != 0 && RewriteRentLog(entry, payment.idPaymentRow)) return;
    WriteRentLog(entry);
}

void Settle(const PaymentCharge& charge, std::int32_t idTransaction) {
    const auto rows =
        core::App().Connection.Execute("UPDATE RentLog SET IdTransaction = ? WHERE IdRentLog = ?",
                                       {charge.selected ? idTransaction : 0, charge.idRentLog});
    if (rows > 0 || !charge.selected) return;
    throw platform::DatabaseError("The charge \"" + charge.description +
                                  "\" has been removed meanwhile, so it can't be paid.");
}

void SettleCharges(const RentPayment& payment, std::int32_t idTransaction) {
    const bool moves = payment.idTransaction == 0 && payment.rentClass == RentClass::Rent;
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
    const std::int32_t idTransaction = WriteTransaction(payment);
    RememberAccount(payment);
    WritePaymentRow(payment, idTransaction);
    SettleCharges(payment, idTransaction);
    if (update == LeaseUpdate::Yes) UpdateLeaseById(payment.idLease, WalkMode::CatchUp);
    unit.Commit();
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    core::NotifyAll(core::kLease, core::kRecordsChanged, payment.idLease);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    return idTransaction;
}

} // namespace leases
