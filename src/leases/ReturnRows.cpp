#include "leases/ReturnRows.h"

#include <algorithm>
#include <utility>

#include "leases/Credits.h"

namespace leases {

using platform::Currency;
using platform::Date;

namespace {

constexpr std::size_t kLongestDescription = 255;

/// Returns a row of the ledger that the return writes.
RentLogEntry EntryOf(const PaymentReturn& returned, std::string_view category, Currency amount,
                     std::string description) {
    return {.idLease = returned.payment.idLease,
            .idTransaction = 0,
            .datePosted = returned.date,
            .rentClass = returned.payment.rentClass,
            .category = std::string(category),
            .amount = amount,
            .description = std::move(description)};
}

/// Returns the row of the bank's fee. A deposit has no fees: its fee is owed with the rent.
RentLogEntry FeeOf(const PaymentReturn& returned) {
    RentLogEntry fee =
        EntryOf(returned, kCategoryReturnFee, returned.fee,
                "Payment of " + returned.payment.dateEffective.ToText() + " returned");
    if (fee.rentClass == TransactionClass::Deposit) fee.rentClass = TransactionClass::Rent;
    return fee;
}

bool IsOriginOf(std::span<const removal::CreditOrigin> credits, const PaymentCharge& charge) {
    return std::ranges::find(credits, charge.idRentLog, &removal::CreditOrigin::idRentLog) !=
           credits.end();
}

/// Returns a text that fits the field, cut between characters.
std::string Shortened(std::string text) {
    if (text.size() <= kLongestDescription) return text;
    std::size_t end = kLongestDescription;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    text.resize(end);
    return text;
}

RentLogEntry CreditRow(const ReturnPlan& plan, std::string_view category, Currency amount) {
    RentLogEntry row = plan.returned;
    row.category = category;
    row.amount = amount;
    row.description = "Credit of the payment";
    return row;
}

void AddSpending(PreviewRows& rows, const ReturnPlan& plan, const CreditSpending& spending) {
    for (const ReopenedCharge& reopened : spending.charges) {
        const PaymentCharge& charge = reopened.charge;
        const auto add = [&](std::string what, const std::string& description, Currency amount) {
            rows.push_back(
                {std::move(what), charge.datePosted, charge.category, description, amount});
        };
        if (!reopened.IsPart()) {
            add("Charge open again", charge.description, charge.amount);
            continue;
        }
        add("Split in two", charge.description, charge.amount);
        add("Part still paid", charge.description, charge.amount - reopened.amount);
        add("Part open again", "Deferred " + charge.description, reopened.amount);
    }
    for (const SpentCredit& credit : spending.credits) {
        if (!credit.IsPart()) continue;
        rows.push_back(RowOf("Credit still used",
                             CreditRow(plan, kCategoryCredit, credit.reopened - credit.amount)));
    }
}

void AddCredits(PreviewRows& rows, const ReturnPlan& plan) {
    for (const removal::CreditOrigin& credit : plan.credits) {
        if (!credit.open.IsZero())
            rows.push_back(
                RowOf("Credit withdrawn", CreditRow(plan, kCategoryCredit, -credit.open)));
        const Currency spent = credit.amount - credit.open;
        if (!spent.IsZero())
            rows.push_back(
                RowOf("Credit spent, owed again", CreditRow(plan, kCategoryOverpayment, spent)));
    }
}

void AddMarks(PreviewRows& rows, const ReturnPlan& plan) {
    const Date day = plan.returned.datePosted;
    rows.push_back({"Payment marked", day, {}, plan.description, {}});
    for (const CreditSpending& spending : plan.spendings) {
        if (!spending.isAll) continue;
        rows.push_back({"Payment from credit marked",
                        day,
                        {},
                        MarkedDescription(day, spending.description),
                        {}});
    }
}

} // namespace

ReturnPlan PlanReturn(const PaymentReturn& returned, std::vector<removal::CreditOrigin> credits) {
    const RentPayment& payment = returned.payment;
    const std::string paid = payment.dateEffective.ToText();
    ReturnPlan plan;
    plan.reversal = TransactionOf(payment);
    plan.reversal.dateEffective = returned.date;
    plan.reversal.amount = -returned.amount;
    plan.reversal.description = Shortened("Return of " + paid + ": " + payment.description);
    plan.spendings = returned.spendings;
    plan.credits = std::move(credits);
    for (const CreditSpending& spending : plan.spendings) {
        for (const SpentCredit& credit : spending.credits) {
            const auto origin =
                std::ranges::find(plan.credits, credit.idOrigin, &removal::CreditOrigin::idRentLog);
            // The payment may have changed since it was shown; the return then refuses to go on.
            if (origin != plan.credits.end()) origin->open += credit.reopened;
        }
    }
    for (const PaymentCharge& charge : payment.charges) {
        if (!IsOriginOf(plan.credits, charge)) plan.reopened.push_back(charge);
    }
    plan.returned =
        EntryOf(returned, kCategoryReturned, returned.amount, "Returned " + returned.date.ToText());
    plan.returned.idTransaction = payment.idTransaction;
    plan.counterpart =
        EntryOf(returned, kCategoryReturned, -returned.amount, "Return of the payment of " + paid);
    plan.payment = EntryOf(returned, payment.paymentType, returned.amount, payment.paymentType);
    plan.payment.flags = RentFlags::Payment;
    plan.fee = FeeOf(returned);
    plan.optionCredit = EntryOf(returned, kCategoryOptionCredit, -returned.optionCredit,
                                "Payment of " + paid + " returned");
    plan.optionCredit.rentClass = TransactionClass::OptionCredit;
    plan.description = MarkedDescription(returned.date, payment.description);
    plan.dueNow = returned.dueNow;
    plan.dueAfter = returned.dueAfter;
    return plan;
}

std::string MarkedDescription(Date day, const std::string& description) {
    return Shortened(removal::ReturnMark(day) + description);
}

PreviewRows RowsOf(const ReturnPlan& plan) {
    PreviewRows rows;
    const books::Transaction& reversal = plan.reversal;
    rows.push_back({"Transaction", reversal.dateEffective, reversal.taxCategory,
                    reversal.description, reversal.amount});
    for (const PaymentCharge& charge : plan.reopened) {
        rows.push_back({charge.amount < Currency() ? "Credit open again" : "Charge open again",
                        charge.datePosted, charge.category, charge.description, charge.amount});
    }
    for (const CreditSpending& spending : plan.spendings)
        AddSpending(rows, plan, spending);
    AddCredits(rows, plan);
    rows.push_back(RowOf("In the place of the charges", plan.returned));
    rows.push_back(RowOf("Settled by the return", plan.counterpart));
    rows.push_back(RowOf("Payment in the ledger", plan.payment));
    if (!plan.fee.amount.IsZero()) rows.push_back(RowOf("Fee charged", plan.fee));
    if (!plan.optionCredit.amount.IsZero())
        rows.push_back(RowOf("Option credit withdrawn", plan.optionCredit));
    if (plan.dueAfter != plan.dueNow) {
        rows.push_back(
            {"Next due date", plan.dueAfter, {}, "until now " + plan.dueNow.ToText(), {}});
    }
    AddMarks(rows, plan);
    return rows;
}

} // namespace leases
