#include <algorithm>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/RunHeard.h"
#include "mortgages/MortgageRun.h"
#include "mortgages/MortgageStory.h"
#include "mortgages/MortgageUpkeep.h"
#include "mortgages/mMortgage.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "support/Words.h"

namespace tests {

using mortgages::ChargeChoice;
using mortgages::MortgagePayment;
using mortgages::RunMode;
using platform::Date;
using support::Event;

namespace {

/// The id of the transaction that a story counts; a number of three digits or more is the id.
std::int32_t IdOf(const std::string& number) {
    if (number.size() > 2) return std::stoi(number);
    const auto ids = Rows("SELECT IdTransaction FROM Transactions ORDER BY IdTransaction");
    return std::stoi(ids.at(std::stoul(number) - 1));
}

MortgagePayment Propose() {
    return mortgages::ProposeMortgagePayment(kMortgageId);
}

/// Selects these charges, counted from 1, one after the other.
void SelectOnly(MortgagePayment& payment, const std::string& places) {
    SelectAll(payment, ChargeChoice::All, false);
    if (places == "none") return;
    for (const std::string& place : support::Split(places, ' '))
        EXPECT_EQ(Select(payment, std::stoul(place) - 1, true), "");
}

/// Enters into a payment what was added to the event.
MortgagePayment Enter(MortgagePayment payment, const Event& event) {
    if (const auto only = event.Added("only ")) SelectOnly(payment, *only);
    if (const auto extra = event.Added("extra ")) {
        payment.extraPrincipal = platform::StrToMoney(*extra);
    }
    if (event.Added("on no day")) payment.dateEffective = {};
    if (const auto from = event.Added("from ")) {
        payment.from.id = std::stoi(*from);
        payment.from.description = from->substr(from->find(' ') + 1);
    }
    payment.checkNumber = event.Added("check ").value_or(payment.checkNumber);
    payment.description = event.Added("described ").value_or(payment.description);
    return payment;
}

void PayAll(const Event& event) {
    MortgagePayment payment = Propose();
    SelectAll(payment, ChargeChoice::All, true);
    SubmitMortgagePayment(Enter(payment, event));
}

std::vector<std::string> Describe(const MortgagePayment& payment) {
    std::vector<std::string> lines;
    for (const mortgages::PaymentCharge& charge : payment.charges) {
        lines.push_back(fmt::format("{} {} {}", charge.selected ? 'x' : '-', charge.category,
                                    platform::MoneyToText(charge.total)));
    }
    lines.push_back(fmt::format("{} of {} from {} to {} on {} for period {}", payment.paymentType,
                                platform::MoneyToText(payment.PaidAmount()),
                                payment.from.description, payment.to.description,
                                payment.dateEffective.ToText(), payment.FromPeriod()));
    return lines;
}

} // namespace

MortgageStory::MortgageStory() : books_(folder_.Path() / "db") {
    AddRuns();
    AddPayments();
}

void MortgageStory::Set(const std::string& field, const std::string& value) {
    SetMortgageField(field, value);
}

std::string MortgageStory::Get(const std::string& field) {
    return Rows(fmt::format("SELECT {} FROM Mortgage WHERE IdMortgage = {}", field, kMortgageId))
        .at(0);
}

MortgageStory::Lines MortgageStory::Ledger() {
    Lines lines = Log();
    for (std::string& line : lines) {
        const Lines cells = support::Split(line);
        line =
            fmt::format("{} | {} | {} | {} | {}", cells[0], cells[1], cells[2], cells[3], cells[4]);
    }
    return lines;
}

void MortgageStory::AddRuns() {
    On("run to ", [](const Event& event) { RunMortgagesOn(Date::Parse(event.rest)); });
    On("run all mortgages", [](const Event&) {
        RunHeard heard;
        mortgages::UpdateMortgages(heard);
        Lines lines = std::move(heard.posted);
        std::ranges::copy(heard.failed, std::back_inserter(lines));
        return lines;
    });
    for (const auto& [verb, mode] : {std::pair{"roll forward", RunMode::RollForward},
                                     {"reprocess", RunMode::Reprocess},
                                     {"catch up", RunMode::CatchUp}}) {
        On(verb, [mode](const Event&) { mortgages::UpdateMortgageById(kMortgageId, mode); });
    }
    On("refresh", [](const Event&) { mortgages::RefreshMortgage(kMortgageId); });
    On("post payoff", [](const Event&) {
        const bool isPosted = mortgages::PostPayoff(kMortgageId) == mortgages::PayoffResult::Posted;
        return Lines{isPosted ? "Posted" : "NotFound"};
    });
}

void MortgageStory::AddPayments() {
    On("pay all", PayAll);
    On("pay charges ", [](const Event& event) {
        MortgagePayment payment = Propose();
        SelectOnly(payment, event.rest);
        SubmitMortgagePayment(Enter(payment, event));
    });
    On("edit payment ", [](const Event& event) {
        SubmitMortgagePayment(Enter(mortgages::ReadMortgagePayment(IdOf(event.rest)), event));
    });
    On("open payment ", [this](const Event& event) {
        const std::size_t of = event.rest.find(" of ");
        const bool isStored = of != std::string::npos;
        MortgagePayment& payment = payments_[event.rest.substr(0, of)];
        payment =
            isStored ? mortgages::ReadMortgagePayment(IdOf(event.rest.substr(of + 4))) : Propose();
        if (!isStored) SelectAll(payment, ChargeChoice::All, true);
        payment = Enter(payment, event);
    });
    On("submit ", [this](const Event& event) { SubmitMortgagePayment(payments_.at(event.rest)); });
    On("read again ", [this](const Event& event) { ReadCharges(payments_.at(event.rest)); });
    On("charges", [](const Event&) { return Describe(Propose()); });
    On("charges of ", [](const Event& event) {
        return Describe(mortgages::ReadMortgagePayment(IdOf(event.rest)));
    });
}

namespace {

TEST_P(MortgageStory, EndsAsTold) {
    Play(GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Stories, MortgageStory,
    testing::ValuesIn(support::ReadStories(std::filesystem::path(VESTREL_TEST_DATA) / "stories")),
    support::StoryName);

} // namespace

} // namespace tests
