#include "leases/AmountPayment.h"

#include <algorithm>
#include <utility>

#include <fmt/core.h>

#include "core/Globals.h"
#include "leases/ChargeEditor.h"
#include "leases/Credits.h"
#include "leases/DueMove.h"
#include "leases/RentLog.h"
#include "leases/RentSplit.h"
#include "platform/database/Connection.h"
#include "platform/system/Clock.h"
#include "platform/values/Format.h"

namespace leases {

using platform::Currency;

namespace {

/// The rows of the ledger that only an amount brings.
struct CreditRows {
    RentLogEntry origin;
    RentLogEntry credit;
};

CreditRows CreditRowsOf(const RentPayment& payment, Currency amount) {
    const std::string day = payment.dateEffective.ToText();
    RentLogEntry origin = {.idLease = payment.idLease,
                           .datePosted = payment.dateEffective,
                           .rentClass = payment.rentClass,
                           .category = std::string(kCategoryOverpayment),
                           .amount = amount,
                           .description = "Paid ahead on " + day};
    RentLogEntry credit = origin;
    credit.category = kCategoryCredit;
    credit.amount = -amount;
    credit.description = "Credit of " + day;
    return {std::move(origin), std::move(credit)};
}

const PaymentCharge& ChargeOf(const RentPayment& payment, std::int32_t idRentLog) {
    return *std::ranges::find(payment.charges, idRentLog, &PaymentCharge::idRentLog);
}

/// Writes the parts in place of the whole; returns the one that is settled.
PaymentCharge WriteParts(const AmountStep& step, RentPart rentPart) {
    auto split = ReadSplit(step.idRentLog);
    if (!split) throw platform::ConflictError("The charge was deleted. Nothing was posted.");
    split->parts[0].amount = step.settled;
    split->parts[1].amount = step.rest;
    if (step.rest < Currency()) split->parts[1].description = split->parts[0].description;
    split->rentPart = rentPart == RentPart::Paid ? 0 : 1;
    const auto ids = SaveSplit(*split);
    const SplitPart& part = split->parts[0];
    const bool isRent = split->IsPeriodRent() && split->rentPart == 0;
    return {.idRentLog = ids[0],
            .datePosted = part.date,
            .category = part.category,
            .amount = part.amount,
            .description = part.description,
            .flags = isRent ? RentFlags::PeriodRent : RentFlags::Ordinary};
}

PaymentCharge WriteCredit(const RentPayment& payment, Currency amount) {
    const CreditRows rows = CreditRowsOf(payment, amount);
    const std::int32_t idOrigin = WriteRentLog(rows.origin);
    TieCredit(WriteRentLog(rows.credit), idOrigin, payment.idLease);
    return {.idRentLog = idOrigin,
            .datePosted = rows.origin.datePosted,
            .category = rows.origin.category,
            .amount = amount,
            .description = rows.origin.description};
}

/// Returns the payment of only what is settled, with its charges as they are before they are split.
RentPayment WholePayment(const AmountPayment& amount, const AmountPlan& plan) {
    RentPayment payment = amount.payment;
    payment.charges.clear();
    for (const AmountStep& step : plan.steps) {
        PaymentCharge charge = ChargeOf(amount.payment, step.idRentLog);
        charge.amount = step.settled;
        if (step.IsPart() && amount.rentPart == RentPart::Open) charge.flags = RentFlags::Ordinary;
        payment.charges.push_back(std::move(charge));
    }
    return payment;
}

PreviewRow RowOf(std::string what, const PaymentCharge& charge, Currency amount) {
    return {std::move(what), charge.datePosted, charge.category, charge.description, amount};
}

void AddSteps(PreviewRows& rows, const AmountPayment& amount, const AmountPlan& plan) {
    for (const AmountStep& step : plan.steps) {
        const PaymentCharge& charge = ChargeOf(amount.payment, step.idRentLog);
        const bool isCredit = charge.amount < Currency();
        if (!step.IsPart()) {
            rows.push_back(RowOf(isCredit ? "Credit used" : "Charge paid", charge, charge.amount));
            continue;
        }
        rows.push_back(RowOf("Split in two", charge, charge.amount));
        rows.push_back(RowOf(isCredit ? "Credit used" : "Part paid", charge, step.settled));
        rows.push_back(RowOf(isCredit ? "Credit left open" : "Part left open", charge, step.rest));
        if (!isCredit) rows.back().description = "Deferred " + charge.description;
    }
}

void AddLeaseRows(PreviewRows& rows, const RentPayment& settled) {
    const int periods = PeriodsPaid(settled);
    if (periods == 0) return;
    const auto move = ReadDueMove(settled.idLease, periods);
    if (!move) return;
    if (!move->optionCredit.IsZero()) {
        for (int i = 0; i < periods; ++i) {
            rows.push_back({"Option credit", platform::Today(), std::string(kCategoryOptionCredit),
                            std::string(kCategoryOptionCredit), move->optionCredit});
        }
    }
    if (move->from.IsSet()) {
        rows.push_back({"Next due date", move->to, {}, "until now " + move->from.ToText(), {}});
    }
}

} // namespace

std::vector<std::string> AmountErrors(const AmountPayment& amount) {
    std::vector<std::string> lines;
    if (amount.received <= Currency())
        lines.emplace_back("The amount received must be more than zero.");
    if (amount.received != InCents(amount.received))
        lines.emplace_back("The amount received must be in whole cents.");
    if (!amount.payment.IsNew())
        lines.emplace_back("A payment that was posted is corrected by its charges.");
    return lines;
}

PreviewRows PreviewAmount(const AmountPayment& amount) {
    PreviewRows rows;
    if (!AmountErrors(amount).empty()) return rows;
    const RentPayment& payment = amount.payment;
    const AmountPlan plan = PlanAmount(payment.charges, amount.received);
    rows.push_back({"Transaction", payment.dateEffective, payment.paymentType, payment.description,
                    amount.received});
    AddSteps(rows, amount, plan);
    if (!plan.credit.IsZero()) {
        const CreditRows credit = CreditRowsOf(payment, plan.credit);
        rows.push_back(RowOf("Paid ahead", credit.origin));
        rows.push_back(RowOf("Credit left open", credit.credit));
    }
    rows.push_back({"Payment in the ledger", payment.dateEffective, payment.paymentType,
                    payment.paymentType, -amount.received});
    AddLeaseRows(rows, WholePayment(amount, plan));
    return rows;
}

std::string DescribeAmount(const AmountPayment& amount) {
    const std::vector<std::string> errors = AmountErrors(amount);
    if (!errors.empty()) return errors.front();
    const AmountPlan plan = PlanAmount(amount.payment.charges, amount.received);
    const auto parts = std::ranges::count_if(plan.steps, &AmountStep::IsPart);
    const auto whole = static_cast<std::ptrdiff_t>(plan.steps.size()) - parts;
    std::string line = fmt::format("{} charge{} paid", whole, whole == 1 ? "" : "s");
    if (parts > 0) line += " and one in part";
    if (!plan.credit.IsZero())
        line += ", " + platform::FormatMoney(plan.credit) + " kept as the tenant's credit";
    const RentPayment settled = WholePayment(amount, plan);
    const int periods = PeriodsPaid(settled);
    const auto move = ReadDueMove(settled.idLease, periods);
    if (!move || !move->from.IsSet()) return line;
    return line + (periods == 0 ? ", next due date stays " + move->from.ToText()
                                : fmt::format(", next due date moves from {} to {}",
                                              move->from.ToText(), move->to.ToText()));
}

std::int32_t SubmitAmount(const AmountPayment& amount, LeaseUpdate update) {
    const std::vector<std::string> errors = AmountErrors(amount);
    if (!errors.empty()) throw platform::FieldError(errors.front());
    platform::UnitOfWork unit(core::App().Connection);
    CheckUnchanged(amount.payment);
    const AmountPlan plan = PlanAmount(amount.payment.charges, amount.received);
    RentPayment payment = amount.payment;
    payment.charges.clear();
    for (const AmountStep& step : plan.steps) {
        payment.charges.push_back(step.IsPart() ? WriteParts(step, amount.rentPart)
                                                : ChargeOf(amount.payment, step.idRentLog));
    }
    if (!plan.credit.IsZero()) payment.charges.push_back(WriteCredit(amount.payment, plan.credit));
    if (payment.Total() != amount.received)
        throw platform::Error("The charges don't add up to the amount. Nothing was posted.");
    const std::int32_t idTransaction = SubmitPayment(payment, update);
    unit.Commit();
    return idTransaction;
}

void SortCharges(RentPayment& payment, std::span<const std::int32_t> order) {
    std::ranges::stable_sort(payment.charges, {}, [order](const PaymentCharge& charge) {
        return std::ranges::find(order, charge.idRentLog) - order.begin();
    });
}

} // namespace leases
