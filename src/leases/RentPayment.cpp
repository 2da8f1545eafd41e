#include "leases/RentPayment.h"

#include "books/PostTransaction.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "leases/RentLog.h"
#include "leases/mLease.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Currency;
using platform::CursorMode;
using platform::Recordset;

namespace {

struct ClassWords {
    std::string_view payment;
    std::string_view descriptionStart;
};

ClassWords WordsOf(RentClass rentClass) {
    switch (rentClass) {
        case RentClass::Subsidy:
            return {"Rent Subsidy Payment", "Rent Subsidy Payment for "};
        case RentClass::Deposit:
            return {"Deposit Payment", "Deposit Payment for "};
        case RentClass::Rent:
        case RentClass::OptionCredit:
            break;
    }
    return {"Rent Payment", "Rent Payment for "};
}

std::vector<PaymentCharge> OpenCharges(std::int32_t idLease, RentClass rentClass) {
    Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT IdRentLog, DatePosted, Amount, Flags FROM RentLog "
              "WHERE (IdLease = ?) AND (Class = ?) AND (IdTransaction = 0) AND (Flags <> 2)",
              CursorMode::ReadOnly, {idLease, static_cast<std::int16_t>(rentClass)});
    std::vector<PaymentCharge> charges;
    for (; !rows.Eof(); rows.MoveNext()) {
        charges.push_back({.idRentLog = rows["IdRentLog"].AsLong(),
                           .datePosted = rows["DatePosted"].AsDate(),
                           .amount = rows["Amount"].AsCurrency(),
                           .flags = RentFlags{rows["Flags"].AsInteger()}});
    }
    return charges;
}

std::string NameOf(std::int16_t kind, std::int32_t id) {
    return core::GetDescription(kind, id, 0, false);
}

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

void SettleCharges(const RentPayment& payment, std::int32_t idTransaction) {
    for (const PaymentCharge& charge : payment.charges) {
        core::App().Connection.Execute("UPDATE RentLog SET IdTransaction = ? WHERE IdRentLog = ?",
                                       {charge.selected ? idTransaction : 0, charge.idRentLog});
        const bool isPeriodRent = (static_cast<int>(charge.flags) & 1) != 0;
        if (charge.selected && payment.rentClass == RentClass::Rent && isPeriodRent) {
            AdvanceNextDue(payment.idLease, OptionCredit::Add, Broadcast::No);
        }
    }
}

} // namespace

Currency RentPayment::Total() const {
    Currency total;
    for (const PaymentCharge& charge : charges) {
        if (charge.selected) total += charge.amount;
    }
    return total;
}

RentPayment ProposePayment(std::int32_t idLease, RentClass rentClass) {
    Recordset lease;
    lease.Open(core::App().Connection,
               "SELECT IdTenant, RentAccount, SubsidyType, SubsidyId FROM Lease WHERE IdLease = ?",
               CursorMode::ReadOnly, {idLease});
    if (lease.Eof()) {
        throw platform::DatabaseError("There is no lease " + std::to_string(idLease));
    }
    const ClassWords words = WordsOf(rentClass);
    RentPayment payment;
    payment.idLease = idLease;
    payment.rentClass = rentClass;
    payment.dateEffective = platform::Today();
    payment.fromType = core::kTenant;
    payment.fromId = lease["IdTenant"].AsLong();
    const bool bySubsidy = rentClass == RentClass::Subsidy && !lease["SubsidyType"].IsNull() &&
                           !lease["SubsidyId"].IsNull();
    if (bySubsidy) {
        payment.fromType = lease["SubsidyType"].AsInteger();
        payment.fromId = lease["SubsidyId"].AsLong();
    }
    payment.fromName = NameOf(payment.fromType, payment.fromId);
    if (!lease["RentAccount"].IsNull()) payment.toAccount = lease["RentAccount"].AsLong();
    payment.toName = NameOf(core::kAccount, payment.toAccount);
    payment.paymentWord = words.payment;
    payment.description = std::string(words.descriptionStart) + NameOf(core::kLease, idLease);
    payment.charges = OpenCharges(idLease, rentClass);
    return payment;
}

std::int32_t SubmitPayment(const RentPayment& payment) {
    platform::UnitOfWork unit(core::App().Connection);
    const std::int32_t idTransaction = books::PostTransaction(TransactionOf(payment));
    if (payment.rentClass == RentClass::Rent || payment.rentClass == RentClass::Subsidy) {
        core::App().Connection.Execute("UPDATE Lease SET RentAccount = ? WHERE IdLease = ?",
                                       {payment.toAccount, payment.idLease});
    }
    WriteRentLog({.idLease = payment.idLease,
                  .idTransaction = idTransaction,
                  .datePosted = payment.dateEffective,
                  .rentClass = payment.rentClass,
                  .category = payment.paymentWord,
                  .amount = -payment.Total(),
                  .description = payment.paymentWord,
                  .flags = RentFlags::Payment});
    SettleCharges(payment, idTransaction);
    UpdateLeaseById(payment.idLease, WalkMode::CatchUp);
    unit.Commit();
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    core::NotifyAll(core::kLease, core::kRecordsChanged, payment.idLease);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    return idTransaction;
}

} // namespace leases
