#include "leases/CreditSpending.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "core/ChargeLedger.h"
#include "core/Rows.h"
#include "leases/Credits.h"
#include "leases/RentSplit.h"
#include "platform/database/FieldReadings.h"
#include "platform/database/Recordset.h"
#include "platform/values/Errors.h"
#include "removal/RentCredits.h"

namespace leases {

using platform::Currency;
using platform::Recordset;

namespace {

/// Returns the transactions that took in credit of the payment, with what they took.
std::vector<CreditSpending> ReadSpentCredits(std::int32_t idPayment) {
    std::vector<CreditSpending> spendings;
    Recordset rows = core::Read(
        "SELECT c.IdRentLog, c.IdOrigin, p.Amount, p.IdTransaction, t.Description FROM "
        "((RentCredit AS c INNER JOIN RentLog AS o ON c.IdOrigin = o.IdRentLog) INNER JOIN RentLog "
        "AS p ON c.IdRentLog = p.IdRentLog) LEFT JOIN Transactions AS t "
        "ON p.IdTransaction = t.IdTransaction WHERE (o.IdTransaction = ?) AND (p.IdTransaction <> "
        "0) AND "
        "(p.IdTransaction <> ?) AND (c.IdReturn = 0) ORDER BY p.IdTransaction, c.IdRentLog",
        {idPayment, idPayment});
    for (; !rows.Eof(); rows.MoveNext()) {
        const std::int32_t idTransaction = IdOf(rows["IdTransaction"]);
        if (spendings.empty() || spendings.back().idTransaction != idTransaction) {
            spendings.emplace_back();
            spendings.back().idTransaction = idTransaction;
            spendings.back().description = TextOf(rows["Description"]);
        }
        spendings.back().credits.push_back(
            {IdOf(rows["IdRentLog"]), IdOf(rows["IdOrigin"]), -MoneyOf(rows["Amount"]), {}});
    }
    return spendings;
}

/// Finds the charges that the credits paid for, and the amount of the credits that was used for
/// them.
void FindCharges(CreditSpending& spending, const RentPayment& later) {
    Currency spent;
    for (const SpentCredit& credit : spending.credits)
        spent += credit.amount;
    Currency left = spent;
    for (const PaymentCharge& charge : later.charges | std::views::reverse) {
        const Currency amount = std::min(left, charge.amount);
        if (amount <= Currency() || IsOrigin(charge.idRentLog)) continue;
        spending.charges.push_back({charge, amount});
        left -= amount;
    }
    Currency reopened = spent - left;
    for (SpentCredit& credit : spending.credits) {
        credit.reopened = std::min(credit.amount, reopened);
        reopened -= credit.reopened;
    }
    std::erase_if(spending.credits,
                  [](const SpentCredit& credit) { return credit.reopened.IsZero(); });
}

/// Splits off the amount `open` of a row; returns the part that is to be open.
std::int32_t SplitOff(std::int32_t idRentLog, Currency open) {
    auto split = ReadSplit(idRentLog);
    if (!split) throw platform::ConflictError("The charge was deleted. Nothing was posted.");
    split->parts[0].amount = split->Rest(open);
    split->parts[1].amount = open;
    split->rentPart = 1;
    return SaveSplit(*split)[1];
}

} // namespace

std::vector<CreditSpending> ReadSpendings(const RentPayment& payment) {
    std::vector<CreditSpending> spendings;
    if (!removal::HasCredits()) return spendings;
    for (CreditSpending& spending : ReadSpentCredits(payment.idTransaction)) {
        RentPayment later;
        later.idTransaction = spending.idTransaction;
        ReadCharges(later);
        FindCharges(spending, later);
        if (spending.charges.empty()) continue;
        spending.idPaymentRow = later.idPaymentRow;
        spending.isAll =
            later.idPaymentRow == 0 &&
            later.charges.size() == spending.charges.size() + spending.credits.size() &&
            std::ranges::none_of(spending.charges, &ReopenedCharge::IsPart) &&
            std::ranges::none_of(spending.credits, &SpentCredit::IsPart);
        spendings.push_back(std::move(spending));
    }
    return spendings;
}

void UndoSpending(const CreditSpending& spending) {
    const auto reopen = [&](std::int32_t idRentLog) {
        core::Settle(core::kRentLedger, idRentLog, spending.idTransaction, core::Settled::No);
    };
    for (const ReopenedCharge& reopened : spending.charges)
        reopen(reopened.IsPart() ? SplitOff(reopened.charge.idRentLog, reopened.amount)
                                 : reopened.charge.idRentLog);
    for (const SpentCredit& credit : spending.credits)
        reopen(credit.IsPart() ? SplitOff(credit.idRentLog, -credit.reopened) : credit.idRentLog);
}

int CountPeriodRents(const CreditSpending& spending) {
    return static_cast<int>(std::ranges::count_if(
        spending.charges,
        [](const ReopenedCharge& reopened) { return IsPeriodRent(reopened.charge.flags); }));
}

} // namespace leases
