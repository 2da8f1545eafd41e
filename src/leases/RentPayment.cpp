#include "leases/RentPayment.h"

#include <algorithm>
#include <tuple>

#include "core/Descriptions.h"
#include "core/KindOfTable.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Currency;
using platform::Recordset;

namespace {

std::string_view DescriptionStart(TransactionClass rentClass) {
    if (rentClass == TransactionClass::Subsidy) return "Rent Subsidy Payment for ";
    if (rentClass == TransactionClass::Deposit) return "Deposit Payment for ";
    return "Rent Payment for ";
}

books::Party PartyOf(core::RecordKind kind, std::int32_t id) {
    return {kind, id, core::GetDescription(kind, id, 0, false)};
}

void AddRows(RentPayment& payment, Recordset& rows, bool selected) {
    for (; !rows.Eof(); rows.MoveNext()) {
        const auto flags = RentFlags{ShortOf(rows["Flags"])};
        if (flags == RentFlags::Payment) {
            if (payment.idTransaction != 0 && selected)
                payment.idPaymentRow = rows["IdRentLog"].AsLong();
            continue;
        }
        payment.charges.push_back({.idRentLog = rows["IdRentLog"].AsLong(),
                                   .datePosted = DateOf(rows["DatePosted"]),
                                   .category = TextOf(rows["Category"]),
                                   .amount = MoneyOf(rows["Amount"]),
                                   .description = TextOf(rows["Description"]),
                                   .flags = flags,
                                   .selected = selected,
                                   .settled = selected && payment.idTransaction != 0});
    }
}

void AddOpenRows(RentPayment& payment, bool selected) {
    Recordset rows = core::Read(
        "SELECT * FROM RentLog WHERE (IdLease = ?) AND (Class = ?) AND (IdTransaction = 0)",
        {payment.idLease, static_cast<std::int16_t>(payment.rentClass)});
    AddRows(payment, rows, selected);
}

void AddOwnRows(RentPayment& payment) {
    Recordset rows =
        core::Read("SELECT * FROM RentLog WHERE IdTransaction = ?", {payment.idTransaction});
    AddRows(payment, rows, true);
}

/// A subsidy's payor is an account or a tenant; a lease that has neither is paid by its tenant.
void SetPayer(RentPayment& payment, Recordset& lease) {
    const core::RecordKind kind = core::KindOf(lease["SubsidyType"]);
    const bool byPayor = payment.rentClass == TransactionClass::Subsidy &&
                         (kind == core::kAccount || kind == core::kTenant) &&
                         !lease["SubsidyId"].IsNull();
    payment.from =
        PartyOf(byPayor ? kind : core::kTenant, IdOf(lease[byPayor ? "SubsidyId" : "IdTenant"]));
}

} // namespace

Currency RentPayment::Total() const {
    Currency total;
    for (const PaymentCharge& charge : charges) {
        if (charge.selected) total += charge.amount;
    }
    return total;
}

std::vector<std::string> PaymentWords(TransactionClass rentClass) {
    if (rentClass == TransactionClass::Subsidy) return {"Rent Subsidy Payment"};
    if (rentClass == TransactionClass::Deposit) return {"Deposit Payment"};
    return {"Rent Payment", "Partial Rent Payment"};
}

bool IsPeriodRent(RentFlags flags) {
    return (static_cast<int>(flags) & static_cast<int>(RentFlags::PeriodRent)) != 0;
}

int CountPeriodRents(const RentPayment& payment) {
    if (payment.rentClass != TransactionClass::Rent) return 0;
    return static_cast<int>(std::ranges::count_if(payment.charges, [](const PaymentCharge& charge) {
        return charge.selected && IsPeriodRent(charge.flags);
    }));
}

int PeriodsPaid(const RentPayment& payment) {
    return payment.IsNew() ? CountPeriodRents(payment) : 0;
}

RentPayment ProposePayment(std::int32_t idLease, TransactionClass rentClass) {
    Recordset lease = core::Read(
        "SELECT IdTenant, RentAccount, SubsidyType, SubsidyId FROM Lease WHERE IdLease = ?",
        {idLease});
    if (lease.Eof()) {
        throw platform::DatabaseError("There is no lease " + std::to_string(idLease));
    }
    RentPayment payment;
    payment.idLease = idLease;
    payment.rentClass = rentClass;
    payment.dateEffective = platform::Today();
    SetPayer(payment, lease);
    payment.to = PartyOf(core::kAccount, IdOf(lease["RentAccount"]));
    payment.paymentType = PaymentWords(rentClass).front();
    payment.description =
        std::string(DescriptionStart(rentClass)) + PartyOf(core::kLease, idLease).description;
    ReadCharges(payment);
    return payment;
}

RentPayment ReadPayment(std::int32_t idTransaction) {
    Recordset row =
        core::Read("SELECT * FROM Transactions WHERE (IdTransaction = ?)", {idTransaction});
    if (row.Eof()) {
        throw platform::DatabaseError("There is no transaction " + std::to_string(idTransaction));
    }
    RentPayment payment;
    payment.idTransaction = idTransaction;
    payment.idLease = IdOf(row["IdLease"]);
    payment.rentClass = TransactionClass{ShortOf(row["Class"])};
    if (!row["DateEffective"].IsBlank()) payment.dateEffective = row["DateEffective"].AsDate();
    payment.from = {core::KindOf(row["DebitType"]), IdOf(row["DebitId"]), TextOf(row["DebitDesc"])};
    payment.to = {core::kAccount, IdOf(row["CreditId"]), TextOf(row["CreditDesc"])};
    payment.checkNumber = TextOf(row["CheckNum"]);
    payment.paymentType = TextOf(row["TaxCategory"]);
    payment.description = TextOf(row["Description"]);
    ReadCharges(payment);
    return payment;
}

void ReadCharges(RentPayment& payment, OpenCharges open) {
    payment.charges.clear();
    payment.idPaymentRow = 0;
    const bool isNew = payment.idTransaction == 0;
    if (!isNew) AddOwnRows(payment);
    if (isNew || open == OpenCharges::Offer) AddOpenRows(payment, isNew);
    std::ranges::sort(payment.charges, [](const PaymentCharge& a, const PaymentCharge& b) {
        return std::tie(a.datePosted, a.idRentLog) < std::tie(b.datePosted, b.idRentLog);
    });
}

} // namespace leases
