#include <algorithm>

#include "core/ChargeLedger.h"
#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "leases/Credits.h"
#include "leases/ReturnPayment.h"
#include "leases/ReturnRows.h"
#include "leases/mLease.h"
#include "platform/database/Connection.h"
#include "platform/database/FieldReadings.h"
#include "platform/values/Errors.h"
#include "removal/RentCredits.h"

namespace leases {

using platform::ConflictError;
using platform::Date;
using removal::SetDescription;

namespace {

/// Throws ConflictError if the books differ from the rows that the user saw.
void CheckUnchanged(const PaymentReturn& returned) {
    PaymentReturn now;
    try {
        now = ProposeReturn(returned.payment.idTransaction);
    } catch (const platform::DatabaseError&) {
        throw;
    } catch (const platform::Error& reason) {
        throw ConflictError(std::string(reason.what()) + ". Nothing was posted.");
    }
    const bool isSame =
        now.amount == returned.amount && now.dueNow == returned.dueNow &&
        now.optionCredit == returned.optionCredit && now.spendings == returned.spendings &&
        std::ranges::equal(now.payment.charges, returned.payment.charges, IsSameCharge);
    if (isSame) return;
    throw ConflictError(
        "The payment or its lease was changed after this was opened. Nothing was posted.");
}

void ReopenCharges(const ReturnPlan& plan, std::int32_t idTransaction) {
    // If it is open again, the credit is withdrawn with the rest of it.
    for (const CreditSpending& spending : plan.spendings)
        UndoSpending(spending);
    removal::ReleaseCredits(idTransaction);
    for (const PaymentCharge& charge : plan.reopened)
        core::Settle(core::kRentLedger, charge.idRentLog, idTransaction, core::Settled::No);
}

/// Writes both sides of the return, tied to each other.
void WriteSides(ReturnPlan& plan, std::int32_t idReversal) {
    plan.counterpart.idTransaction = plan.payment.idTransaction = idReversal;
    const std::int32_t idOrigin = WriteRentLog(plan.returned);
    const std::int32_t idCounterpart = WriteRentLog(plan.counterpart);
    WriteRentLog(plan.payment);
    TieCredit(idCounterpart, idOrigin, plan.returned.idLease, idReversal);
}

/// Marks a payment from credit that no longer settles anything.
void MarkSpending(const CreditSpending& spending, Date day) {
    if (!spending.isAll) return;
    SetDescription(spending.idTransaction, MarkedDescription(day, spending.description));
}

void MarkPayment(const ReturnPlan& plan) {
    SetDescription(plan.returned.idTransaction, plan.description);
    for (const CreditSpending& spending : plan.spendings)
        MarkSpending(spending, plan.returned.datePosted);
    if (plan.dueAfter == plan.dueNow) return;
    core::Execute("UPDATE Lease SET DateNextDue = ? WHERE IdLease = ?",
                  {plan.dueAfter.ToText(), plan.returned.idLease});
}

} // namespace

std::int32_t SubmitReturn(const PaymentReturn& returned) {
    const std::vector<std::string> errors = ReturnErrors(returned);
    if (!errors.empty()) throw platform::FieldError(errors.front());
    platform::UnitOfWork unit(core::App().Connection);
    // Until today the payment was good: the days up to now are charged as they would have been.
    UpdateLeaseById(returned.payment.idLease, WalkMode::CatchUp);
    CheckUnchanged(returned);
    const std::int32_t idPayment = returned.payment.idTransaction;
    ReturnPlan plan = PlanReturn(returned, removal::OriginsOf(idPayment));
    // Money that goes back starts no event that waits for money.
    const std::int32_t idReversal = books::PostTransaction(plan.reversal, books::Triggers::Skip);
    ReopenCharges(plan, idPayment);
    WriteSides(plan, idReversal);
    WriteRentLog(plan.fee);
    WriteRentLog(plan.optionCredit);
    MarkPayment(plan);
    UpdateLeaseById(plan.returned.idLease, WalkMode::CatchUp);
    core::NotifyAll(core::kTransaction, core::kRecordsChanged, 0);
    core::NotifyAll(core::kLease, core::kRecordsChanged, plan.returned.idLease);
    core::NotifyAll(core::kRentLog, core::kRecordsChanged, 0);
    unit.Commit();
    return idReversal;
}

} // namespace leases
