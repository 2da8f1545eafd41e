#include "books/PostTransaction.h"
#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "mortgages/MortgageLog.h"
#include "mortgages/MortgagePayment.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/clsMortgage.h"
#include "platform/database/Recordset.h"

namespace mortgages {

using platform::CursorMode;
using platform::Recordset;

namespace {

books::Transaction TransactionOf(const MortgagePayment& payment) {
    return {.dateEffective = payment.dateEffective,
            .debit = {core::kAccount, payment.fromAccount, payment.fromName},
            .credit = {core::kAccount, payment.toAccount, payment.toName},
            .amount = payment.PaidAmount(),
            .taxCategory = payment.paymentType,
            .ien = books::Ien::Expense,
            .checkNumber = payment.checkNumber,
            .description = payment.description,
            .transactionClass = kMortgagePaymentClass,
            .idBuilding = core::GetMortgageBuilding(payment.idMortgage),
            .idMortgage = payment.idMortgage};
}

MortgageLogEntry PaymentRowOf(const MortgagePayment& payment, std::int32_t idTransaction) {
    const bool isNew = payment.idTransaction == 0;
    return {.idMortgage = payment.idMortgage,
            .idTransaction = idTransaction,
            .datePosted = payment.dateEffective,
            .category = isNew ? std::string(kCategoryPayment) : payment.paymentType,
            .principal = {},
            .payDown = {},
            .interest = {},
            .other = -payment.PaidAmount(),
            .description = isNew ? std::string(kCategoryPayment) : payment.description,
            .flags = LogFlags::Payment};
}

/// The schedule isn't rebuilt: what the row says of due date and balance is wrong from here on,
/// until the mortgage is reckoned anew.
void ApplyBasePayment(std::int32_t idMortgage, const PaymentCharge& charge, bool isNew) {
    clsMortgage mortgage;
    if (!mortgage.LoadMtg(idMortgage)) return;
    if (charge.period > mortgage.ArraySize()) {
        // A row that came without lists as long as its loan: the schedule lengthens them.
        clsMortgage whole = mortgage;
        whole.ReCalc();
        whole.SaveMtg(idMortgage);
        mortgage = clsMortgage();
        mortgage.LoadMtg(idMortgage);
    }
    mortgage.SetXPri(charge.period, charge.payDown.ToDouble());
    if (isNew) mortgage.AdvanceCurrentPeriod();
    mortgage.SaveMtg(idMortgage);
}

void SettleCharges(const MortgagePayment& payment, std::int32_t idTransaction) {
    for (const PaymentCharge& charge : payment.charges) {
        const auto rows = core::App().Connection.Execute(
            "UPDATE MortgageLog SET IdTransaction = ? WHERE IdMortgageLog = ?",
            {charge.selected ? idTransaction : 0, charge.idMortgageLog});
        if (!charge.selected) continue;
        if (rows == 0) throw platform::Error("A charge that was selected isn't there any more.");
        if (charge.IsBasePayment())
            ApplyBasePayment(payment.idMortgage, charge, payment.idTransaction == 0);
    }
}

/// The split of the base payments in the log follows the extra principal paid; their totals stay.
void RefreshSplits(const MortgagePayment& payment) {
    const std::int16_t from = payment.FromPeriod();
    clsMortgage mortgage;
    if (from == 0 || !mortgage.LoadMtg(payment.idMortgage)) return;
    mortgage.ReCalc();
    Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT * FROM MortgageLog WHERE (IdMortgage = ?) AND (Period >= ?) AND (Flags = 1) "
              "ORDER BY Period",
              CursorMode::Updatable, {payment.idMortgage, from});
    for (; !rows.Eof(); rows.MoveNext()) {
        const int period = rows["Period"].AsInteger();
        rows["Principal"].Set(mortgage.GetPPMT(period));
        rows["Interest"].Set(mortgage.GetIPMT(period));
        rows.Update();
    }
}

} // namespace

std::int32_t SubmitMortgagePayment(const MortgagePayment& payment, OpenedFrom from) {
    platform::UnitOfWork unit(core::App().Connection);
    std::int32_t idTransaction = payment.idTransaction;
    if (idTransaction == 0) {
        idTransaction = books::PostTransaction(TransactionOf(payment));
    } else {
        books::RewriteTransaction(idTransaction, TransactionOf(payment));
    }
    WriteMortgageLog(PaymentRowOf(payment, idTransaction), payment.idPaymentRow);
    core::App().Connection.Execute("UPDATE Mortgage SET IdLastPmt = ? WHERE IdMortgage = ?",
                                   {payment.fromAccount, payment.idMortgage});
    SettleCharges(payment, idTransaction);
    RefreshSplits(payment);
    if (from == OpenedFrom::Elsewhere) RefreshMortgage(payment.idMortgage);
    unit.Commit();
    for (const std::int16_t kind : {core::kTransaction, core::kMortgageLog, core::kMortgage})
        core::NotifyAll(kind, core::kRecordsChanged, 0);
    return idTransaction;
}

} // namespace mortgages
