#include "leases/Ledger.h"

#include <algorithm>
#include <ranges>

#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/LeaseEditor.h"
#include "leases/RentLog.h"
#include "leases/mLease.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/system/Clock.h"

namespace leases {

using platform::Currency;
using platform::Recordset;

namespace {

std::string_view Filter(LedgerRows rows) {
    switch (rows) {
        case LedgerRows::Open:
            return "AND (IdTransaction = 0) ";
        case LedgerRows::Settled:
            return "AND (IdTransaction <> 0) ";
        case LedgerRows::All:
            break;
    }
    return "";
}

LedgerRow ReadRow(Recordset& rows) {
    return {.idRentLog = rows["IdRentLog"].AsLong(),
            .flags = RentFlags{ShortOf(rows["Flags"])},
            .datePosted = DateOf(rows["DatePosted"]),
            .category = TextOf(rows["Category"]),
            .description = TextOf(rows["Description"]),
            .amount = MoneyOf(rows["Amount"]),
            .openTotal = std::nullopt};
}

books::Transaction DepositTransaction(std::int32_t idLease, RentFlags flags) {
    Recordset lease = core::Read(
        "SELECT IdTenant, DepositAccount, DepositBalance FROM Lease WHERE IdLease = ?", {idLease});
    if (lease.Eof()) {
        throw platform::DatabaseError("There is no lease " + std::to_string(idLease));
    }
    const std::int32_t idAccount = IdOf(lease["DepositAccount"]);
    books::Transaction transaction;
    transaction.dateEffective = platform::Today();
    transaction.debit = {core::kAccount, idAccount,
                         core::GetDescription(core::kAccount, idAccount)};
    transaction.transactionClass = static_cast<std::int16_t>(TransactionClass::Deposit);
    transaction.flags = static_cast<std::int16_t>(flags);
    static_cast<books::References&>(transaction) = GetLeaseLinks(idLease);
    transaction.amount = MoneyOf(lease["DepositBalance"]);
    return transaction;
}

} // namespace

std::vector<LedgerRow> ReadLedger(std::int32_t idLease, const LedgerTab& tab) {
    Recordset rows = core::Read(
        "SELECT IdRentLog, Flags, DatePosted, Category, Description, Amount FROM RentLog "
        "WHERE (IdLease = ?) AND (Class = ?) " +
            std::string(Filter(tab.rows)) + "ORDER BY DateValue(DatePosted) DESC, IdRentLog DESC",
        {idLease, static_cast<std::int16_t>(tab.rentClass)});
    std::vector<LedgerRow> ledger;
    for (; !rows.Eof(); rows.MoveNext())
        ledger.push_back(ReadRow(rows));
    if (tab.rows != LedgerRows::Open) return ledger;
    Currency total;
    for (LedgerRow& row : std::views::reverse(ledger)) {
        total += row.amount;
        row.openTotal = total;
    }
    return ledger;
}

books::Transaction ProposeDepositRefund(std::int32_t idLease) {
    books::Transaction refund = DepositTransaction(idLease, RentFlags::DepositRefund);
    refund.credit = {core::kTenant, refund.idTenant,
                     core::GetDescription(core::kTenant, refund.idTenant)};
    refund.taxCategory = refund.description = "Deposit Refund";
    refund.ien = books::Ien::Unclassified;
    return refund;
}

books::Transaction ProposeDepositCharge(std::int32_t idLease) {
    books::Transaction charge = DepositTransaction(idLease, RentFlags::DepositCharge);
    charge.credit = {core::kAccount, 0, ""};
    charge.taxCategory = charge.description = "Deposit Charge";
    charge.ien = books::Ien::Income;
    return charge;
}

void WriteDepositRow(std::int32_t idTransaction, const books::Transaction& transaction) {
    const RentFlags flags{transaction.flags};
    if (flags != RentFlags::DepositRefund && flags != RentFlags::DepositCharge) return;
    // An ordinary transaction has no class and never has a ledger row.
    if (transaction.transactionClass == 0) return;
    platform::UnitOfWork unit(core::App().Connection);
    Recordset row = core::Read("SELECT IdRentLog, IdLease FROM RentLog WHERE IdTransaction = ?",
                               {idTransaction});
    const std::int32_t idRow = row.Eof() ? 0 : row["IdRentLog"].AsLong();
    const std::int32_t idLeaseBefore = row.Eof() ? 0 : IdOf(row["IdLease"]);
    WriteRentLog({.idLease = transaction.idLease,
                  .idTransaction = idTransaction,
                  .datePosted = transaction.dateEffective,
                  .rentClass = TransactionClass{transaction.transactionClass},
                  .category = transaction.taxCategory,
                  .amount = transaction.amount,
                  .description = transaction.description,
                  .flags = flags},
                 idRow);
    StoreBalances(transaction.idLease);
    if (idLeaseBefore != transaction.idLease) StoreBalances(idLeaseBefore);
    unit.Commit();
}

} // namespace leases
