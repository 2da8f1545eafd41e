#include <algorithm>
#include <optional>

#include <fmt/core.h>

#include "core/ChargeLedger.h"
#include "core/Codes.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "mortgages/ExtraPrincipal.h"
#include "mortgages/MortgageLog.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/MortgageUpkeep.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"

namespace mortgages {

using platform::ConflictError;
using platform::Recordset;

namespace {

[[noreturn]] void ThrowConflict(const PaymentCharge& charge, std::string_view fate) {
    throw ConflictError(fmt::format("The charge \"{}\" of {} {}. Nothing was paid.",
                                    charge.description, charge.datePosted.ToText(), fate));
}

/// The charges on the screen were read before this unit of work began.
void CheckCharge(const MortgagePayment& payment, const PaymentCharge& charge) {
    Recordset row = core::Read(
        "SELECT IdTransaction, Total, PayDown, Period, Flags FROM MortgageLog "
        "WHERE IdMortgageLog = ?",
        {charge.idMortgageLog});
    if (row.Eof()) ThrowConflict(charge, "has been deleted");
    const std::int32_t paidBy = IdOf(row["IdTransaction"]);
    if (paidBy != 0 && paidBy != payment.idTransaction) {
        ThrowConflict(charge, "has already been paid");
    }
    // Another edit of the same payment has reopened it.
    if (paidBy != charge.idTransaction && paidBy != payment.idTransaction) {
        ThrowConflict(charge, "has been changed");
    }
    if (MoneyOf(row["Total"]) != charge.total || MoneyOf(row["PayDown"]) != charge.payDown ||
        ShortOf(row["Period"]) != charge.period ||
        LogFlags{ShortOf(row["Flags"])} != charge.flags) {
        ThrowConflict(charge, "has been changed");
    }
}

void CheckStoredPayment(const MortgagePayment& payment) {
    if (!core::RecordExists(core::kTransaction, payment.idTransaction)) {
        throw ConflictError("This payment has been deleted. Nothing was saved.");
    }
    Recordset rows = core::Read(
        "SELECT IdMortgageLog FROM MortgageLog WHERE IdTransaction = ? "
        "AND (Flags <> 2 OR Flags IS NULL)",
        {payment.idTransaction});
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::int32_t id = rows["IdMortgageLog"].AsLong();
        const bool known = std::ranges::any_of(payment.charges, [&](const auto& at) {
            return at.idMortgageLog == id &&
                   (at.selected || at.idTransaction == payment.idTransaction);
        });
        if (!known) throw ConflictError("This payment has been changed. Nothing was saved.");
    }
}

void CheckUnchanged(const MortgagePayment& payment) {
    if (!payment.IsNew()) {
        CheckStoredPayment(payment);
    } else if (!core::RecordExists(core::kMortgage, payment.idMortgage)) {
        throw ConflictError("The mortgage has been deleted. Nothing was paid.");
    }
    for (const PaymentCharge& charge : payment.charges) {
        if (charge.selected) CheckCharge(payment, charge);
    }
    const std::vector<std::string> errors = PaymentErrors(payment);
    if (!errors.empty()) throw platform::Error(errors.front());
}

/// Returns the building of a payment; if the mortgage was deleted, the building that it was posted
/// for.
std::int32_t BuildingOf(const MortgagePayment& payment) {
    if (payment.IsNew() || core::RecordExists(core::kMortgage, payment.idMortgage)) {
        return core::GetMortgageBuilding(payment.idMortgage);
    }
    return platform::AsOr0<std::int32_t>(core::ReadValue(
        "SELECT IdBuilding FROM Transactions WHERE IdTransaction = ?", {payment.idTransaction}));
}

books::Transaction TransactionOf(const MortgagePayment& payment) {
    books::Transaction transaction = books::TransactionOf(payment, payment.PaidAmount());
    transaction.ien = books::Ien::Expense;
    transaction.transactionClass = static_cast<std::int16_t>(core::TransactionClass::Mortgage);
    transaction.idBuilding = BuildingOf(payment);
    transaction.idMortgage = payment.idMortgage;
    return transaction;
}

MortgageLogEntry PaymentRowOf(const MortgagePayment& payment, std::int32_t idTransaction) {
    const bool isNew = payment.IsNew();
    MortgageLogEntry entry;
    entry.idMortgage = payment.idMortgage;
    entry.idTransaction = idTransaction;
    entry.datePosted = payment.dateEffective;
    entry.category = isNew ? std::string(kCategoryPayment) : payment.paymentType;
    entry.other = -payment.PaidAmount();
    entry.description = isNew ? std::string(kCategoryPayment) : payment.description;
    entry.flags = LogFlags::Payment;
    return entry;
}

/// Returns the row of a stored payment as it is now, 0 if there is none: another program may have
/// added, deleted or replaced it since the payment was read, and a payment has only one row.
std::int32_t PaymentRowNow(MortgagePayment payment) {
    if (payment.IsNew()) return 0;
    ReadCharges(payment);
    return payment.idPaymentRow;
}

/// The schedule isn't rebuilt here: until the mortgage is recalculated, its row has the wrong due
/// date and balance.
void ApplyBasePayment(std::int32_t idMortgage, const PaymentCharge& charge, bool isNew) {
    clsMortgage mortgage;
    if (!LoadWithEntry(mortgage, idMortgage, charge.period)) return;
    EnterExtra(mortgage, idMortgage, charge.period, charge.payDown);
    if (isNew) mortgage.AdvanceCurrentPeriod();
    mortgage.SaveMtg(idMortgage);
}

void SettleCharges(const MortgagePayment& payment, std::int32_t idTransaction) {
    for (const PaymentCharge& charge : payment.charges) {
        core::Settle(core::kMortgageLedger, charge.idMortgageLog, idTransaction,
                     charge.selected ? core::Settled::Yes : core::Settled::No);
        if (charge.selected && charge.IsBasePayment())
            ApplyBasePayment(payment.idMortgage, charge, payment.IsNew());
    }
}

/// Splits the base payments in the log again after the extra principal; their totals stay.
void RefreshSplits(const MortgagePayment& payment) {
    const std::int16_t from = payment.FromPeriod();
    clsMortgage mortgage;
    if (from == 0 || !mortgage.LoadMtg(payment.idMortgage)) return;
    mortgage.ReCalc();
    Recordset rows = core::Write(
        "SELECT * FROM MortgageLog WHERE (IdMortgage = ?) AND (Period >= ?) AND (Flags = 1) "
        "ORDER BY Period",
        {payment.idMortgage, from});
    for (; !rows.Eof(); rows.MoveNext()) {
        const int period = rows["Period"].AsInteger();
        rows["Principal"].Set(mortgage.GetPPMT(period));
        rows["Interest"].Set(mortgage.GetIPMT(period));
        rows.Update();
    }
}

} // namespace

std::vector<std::string> PaymentErrors(const MortgagePayment& payment) {
    std::vector<std::string> errors;
    if (!payment.dateEffective.IsSet()) errors.emplace_back("A payment date must be entered.");
    std::string extra = ExtraFault(payment);
    if (!extra.empty()) errors.push_back(std::move(extra));
    return errors;
}

std::int32_t SubmitMortgagePayment(const MortgagePayment& payment) {
    platform::UnitOfWork unit(core::App().Connection);
    CheckUnchanged(payment);
    const std::int32_t idTransaction = books::StoreTransaction(payment, TransactionOf(payment));
    WriteMortgageLog(PaymentRowOf(payment, idTransaction), PaymentRowNow(payment));
    core::Execute("UPDATE Mortgage SET IdLastPmt = ? WHERE IdMortgage = ?",
                  {payment.from.id, payment.idMortgage});
    SettleCharges(payment, idTransaction);
    BookExtra(payment, idTransaction);
    RefreshSplits(payment);
    RefreshMortgage(payment.idMortgage);
    for (const core::RecordKind kind : {core::kTransaction, core::kMortgageLog, core::kMortgage})
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    unit.Commit();
    return idTransaction;
}

} // namespace mortgages
