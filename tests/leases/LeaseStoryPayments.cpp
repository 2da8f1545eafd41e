// The events of payments, credits and returns.

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "leases/CreditChecks.h"
#include "leases/Credits.h"
#include "leases/LeaseStory.h"
#include "leases/PaymentOutlook.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "removal/DeleteRecord.h"
#include "support/Books.h"
#include "support/Words.h"

namespace tests {

using core::TransactionClass;
using leases::AmountPayment;
using leases::RentPayment;
using platform::Currency;
using platform::Date;
using support::Event;
using support::Split;

namespace {

std::string Ask(std::string_view sql) {
    return support::Ask(core::App().Connection, sql);
}

bool IsNumber(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

/// The id of the lease's transaction that a story counts; a number of three digits or more is the
/// id.
std::int32_t IdOf(const std::string& number) {
    if (number.size() > 2) return std::stoi(number);
    const auto ids = support::Rows(
        core::App().Connection,
        fmt::format("SELECT IdTransaction FROM Transactions WHERE IdLease = {} ORDER BY "
                    "IdTransaction",
                    kLeaseId));
    return std::stoi(ids.at(std::stoul(number) - 1));
}

TransactionClass ClassOf(const std::string& word) {
    for (const auto& [name, rentClass] : {std::pair{"rent", TransactionClass::Rent},
                                          {"subsidy", TransactionClass::Subsidy},
                                          {"deposit", TransactionClass::Deposit}}) {
        if (word == name) return rentClass;
    }
    throw std::runtime_error("no such class: " + word);
}

RentPayment Propose(const std::string& rentClass) {
    return leases::ProposePayment(kLeaseId, ClassOf(rentClass));
}

RentPayment Reopen(const std::string& number) {
    RentPayment payment = leases::ReadPayment(IdOf(number));
    leases::ReadCharges(payment, leases::OpenCharges::Offer);
    return payment;
}

void SetCharges(RentPayment& payment, const Event& event) {
    if (const auto order = event.Added("first ")) {
        std::vector<std::int32_t> ids;
        for (const std::string& place : Split(*order, ' '))
            ids.push_back(payment.charges.at(std::stoul(place) - 1).idRentLog);
        leases::SortCharges(payment, ids);
    }
    const auto only = event.Added("only ");
    if (!only) return;
    for (leases::PaymentCharge& charge : payment.charges)
        charge.selected = false;
    if (*only == "none") return;
    for (const std::string& place : Split(*only, ' '))
        payment.charges.at(std::stoul(place) - 1).selected = true;
}

void SetParties(RentPayment& payment, const Event& event) {
    if (const auto account = event.Added("from account ")) {
        payment.from = {core::kAccount, std::stoi(*account),
                        Ask("SELECT ShowAs FROM Account WHERE IdAccount = " + *account)};
    } else if (const auto payer = event.Added("from ")) {
        payment.from.id = 0;
        payment.from.description = *payer;
    }
    if (const auto receiver = event.Added("to ")) {
        payment.to.id = IsNumber(*receiver) ? std::stoi(*receiver) : 0;
        if (!IsNumber(*receiver)) payment.to.description = *receiver == "nobody" ? "" : *receiver;
    }
}

/// Enters into a payment what was added to the event.
RentPayment Enter(RentPayment payment, const Event& event) {
    SetCharges(payment, event);
    SetParties(payment, event);
    if (const auto day = event.Added("on ")) payment.dateEffective = Date::Parse(*day);
    payment.checkNumber = event.Added("check ").value_or(payment.checkNumber);
    payment.paymentType = event.Added("as ").value_or(payment.paymentType);
    if (const auto words = event.Added("described")) payment.description = "  " + *words + " ";
    return payment;
}

AmountPayment EnterAmount(const std::string& amount, const Event& event) {
    AmountPayment payment{Enter(Propose(event.Added("of ").value_or("rent")), event),
                          platform::StrToMoney(amount)};
    if (event.Added("the part counts as paid")) payment.rentPart = leases::RentPart::Paid;
    return payment;
}

void Submit(const RentPayment& payment, const Event& event) {
    leases::SubmitPayment(
        payment, event.Added("without a run") ? leases::LeaseUpdate::No : leases::LeaseUpdate::Yes);
}

std::string NextDue() {
    return Ask(fmt::format("SELECT DateNextDue FROM Lease WHERE IdLease = {}", kLeaseId));
}

/// Every payment by amount of every story does just what it showed before.
void Submit(const AmountPayment& amount) {
    const leases::PreviewRows preview = leases::PreviewAmount(amount);
    const auto due = std::ranges::find(preview, "Next due date", &leases::PreviewRow::what);
    const std::string nextDue = due == preview.end() ? NextDue() : due->date.ToText();
    const Lines before = LedgerLines();
    leases::SubmitAmount(amount);
    EXPECT_EQ(NextDue(), nextDue);
    EXPECT_EQ(Difference(LedgerLines(), before), NewRows(preview));
    EXPECT_EQ(Difference(before, LedgerLines()), RemovedRows(preview));
}

/// "NAME of CLASS|N"
std::pair<std::string, std::string> NameAndWhat(const std::string& words) {
    const std::size_t of = words.find(" of ");
    return {words.substr(0, of), words.substr(of + 4)};
}

Lines Describe(const leases::PreviewRows& preview) {
    Lines lines;
    for (const leases::PreviewRow& row : preview)
        lines.push_back(fmt::format("{} {}", row.what, platform::FormatMoney(row.amount)));
    return lines;
}

/// The sums that are open: of the rents of a period, and of everything else.
std::string Owed() {
    std::string owed;
    for (const auto& [name, flags] : {std::pair{"rent", "= 1"}, {"other", "<> 1"}}) {
        const std::string sum = Ask(fmt::format(
            "SELECT Sum(Amount) FROM RentLog WHERE IdTransaction = 0 AND Class <> 4 AND Flags {}",
            flags));
        if (sum != "null") owed += fmt::format("{}{} {}", owed.empty() ? "" : ", ", name, sum);
    }
    return owed.empty() ? "nothing is" : owed;
}

leases::PaymentReturn ProposeReturn(const std::string& number, const Event& event) {
    const std::int32_t id =
        number.empty()
            ? std::stoi(Ask("SELECT Max(IdTransaction) FROM Transactions WHERE Amount > 0"))
            : IdOf(number);
    leases::PaymentReturn returned = leases::ProposeReturn(id);
    if (const auto fee = event.Added("fee ")) returned.fee = platform::StrToMoney(*fee);
    if (const auto day = event.Added("on ")) returned.date = Date::Parse(*day);
    if (const auto due = event.Added("due")) returned.dueAfter = Date::Parse(*due);
    return returned;
}

} // namespace

void LeaseStory::AddPayments() {
    On("pay ", [](const Event& event) { Submit(Enter(Propose(event.rest), event), event); });
    On("pay amount ", [](const Event& event) { Submit(EnterAmount(event.rest, event)); });
    On("edit payment ",
       [](const Event& event) { Submit(Enter(Reopen(event.rest), event), event); });
    On("open payment ", [this](const Event& event) {
        const auto [name, what] = NameAndWhat(event.rest);
        AmountPayment& payment = payments_[name];
        payment.payment = Enter(IsNumber(what) ? Reopen(what) : Propose(what), event);
        payment.received = {};
        if (const auto amount = event.Added("amount ")) {
            payment.received = platform::StrToMoney(*amount);
        }
    });
    On("submit ", [this](const Event& event) {
        const AmountPayment& payment = payments_.at(event.rest);
        if (payment.received != Currency()) {
            Submit(payment);
        } else {
            Submit(Enter(payment.payment, event), event);
        }
    });
    On("read again ", [this](const Event& event) {
        leases::ReadCharges(payments_.at(event.rest).payment, leases::OpenCharges::Offer);
    });
    On("delete payment ", [](const Event& event) {
        const support::ScriptedDialogs dialogs({event.Added("with its charges").has_value()});
        removal::DeleteRecord(core::kTransaction, IdOf(event.rest), removal::Confirm::DontAsk);
    });
    On("delete lease", [](const Event&) {
        removal::DeleteRecord(core::kLease, kLeaseId, removal::Confirm::DontAsk);
    });
    On("settle from credit ",
       [](const Event& event) { leases::SetSettlesCharges(kLeaseId, event.rest == "yes"); });
}

void LeaseStory::AddQuestions() {
    On("outlook of ", [](const Event& event) {
        return Lines{leases::DescribeOutlook(Enter(Propose(event.rest), event))};
    });
    On("outlook of amount ", [](const Event& event) {
        return Lines{leases::DescribeAmount(EnterAmount(event.rest, event))};
    });
    On("outlook of payment ", [](const Event& event) {
        return Lines{leases::DescribeOutlook(Enter(Reopen(event.rest), event))};
    });
    On("charges of ", [](const Event& event) {
        Lines lines;
        const RentPayment payment = IsNumber(event.rest) ? Reopen(event.rest) : Propose(event.rest);
        for (const leases::PaymentCharge& charge : payment.charges)
            lines.push_back((charge.selected ? "x " : "- ") + charge.description);
        const std::string& receiver = payment.to.description;
        lines.push_back(fmt::format("{} from {} to {}", platform::FormatMoney(payment.Total()),
                                    payment.from.description,
                                    receiver.empty() ? "nobody" : receiver));
        return lines;
    });
    On("preview amount ", [](const Event& event) {
        return Describe(leases::PreviewAmount(EnterAmount(event.rest, event)));
    });
    On("credit of ", [](const Event& event) {
        return Lines{platform::FormatMoney(leases::CreditBalance(kLeaseId, ClassOf(event.rest)))};
    });
    On("paid",
       [](const Event&) { return Lines{fmt::format("{}", fmt::join(PaidCharges(), "; "))}; });
    On("owed", [](const Event&) { return Lines{Owed()}; });
    On("the books balance", [](const Event&) { ExpectBalanced(); });
}

void LeaseStory::AddReturns() {
    On("return payment", [](const Event& event) {
        leases::SubmitReturn(ProposeReturn(event.rest, event));
        ExpectBalanced();
    });
    On("open return ", [this](const Event& event) {
        const auto [name, number] = NameAndWhat(event.rest);
        returns_[name] = ProposeReturn(number, event);
    });
    On("submit return ",
       [this](const Event& event) { leases::SubmitReturn(returns_.at(event.rest)); });
    On("rows of ", [this](const Event& event) {
        return Lines{std::to_string(leases::PreviewReturn(returns_.at(event.rest)).size())};
    });
    On("marks of ", [this](const Event& event) {
        const leases::PreviewRow row = leases::PreviewReturn(returns_.at(event.rest)).back();
        return Lines{row.what + ": " + row.description};
    });
    On("errors of return ",
       [](const Event& event) { return leases::ReturnErrors(ProposeReturn(event.rest, event)); });
    On("preview return of ", [](const Event& event) {
        return Describe(leases::PreviewReturn(ProposeReturn(event.rest, event)));
    });
}

} // namespace tests
