#include <algorithm>
#include <cstdint>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "leases/AmountPayment.h"
#include "leases/RentPayment.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "vestrelctl/Arguments.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

struct PayArguments {
    std::int32_t lease = 0;
    int rentClass = 1;
    std::string date;
    std::string from;
    std::optional<std::int32_t> to;
    std::string check;
    std::optional<std::string> amount;
    std::vector<std::int32_t> order;
    leases::RentPart rentPart = leases::RentPart::Open;
    bool preview = false;
};

void SetParties(leases::RentPayment& payment, const PayArguments& given) {
    if (!given.from.empty()) {
        payment.from = ReadParty("--from", given.from);
    }
    if (given.to) {
        payment.to.id = *given.to;
        payment.to.description = AccountName("--to", *given.to);
    }
    if (payment.from.id == 0 && payment.from.description.empty()) {
        throw platform::Error(
            fmt::format("--from: lease {} doesn't say who pays; name the payor", given.lease));
    }
    if (payment.to.id == 0) {
        throw platform::Error(fmt::format(
            "--to: lease {} has no account that receives its rent; name one", given.lease));
    }
}

/// Puts these charges before the others, in this order.
void SetOrder(leases::RentPayment& payment, const std::vector<std::int32_t>& order) {
    for (const std::int32_t id : order) {
        if (std::ranges::find(payment.charges, id, &leases::PaymentCharge::idRentLog) ==
            payment.charges.end())
            throw platform::Error(
                fmt::format("--order: {} is not an open charge of the lease", id));
    }
    leases::SortCharges(payment, order);
}

leases::RentPayment ReadPayment(const PayArguments& given) {
    leases::RentPayment payment =
        leases::ProposePayment(given.lease, static_cast<core::TransactionClass>(given.rentClass));
    SetParties(payment, given);
    if (!given.date.empty()) payment.dateEffective = platform::Date::Parse(given.date);
    payment.checkNumber = given.check;
    payment.description = platform::Trim(payment.description);
    return payment;
}

void PayCharges(const PayArguments& given) {
    const leases::RentPayment payment = ReadPayment(given);
    if (payment.charges.empty()) throw platform::Error("There is no open charge to pay");
    if (payment.Total() < platform::Currency()) {
        throw platform::Error(
            "The open credits are more than the open charges: there is nothing to pay");
    }
    const std::int32_t id = leases::SubmitPayment(payment);
    PrintPaid(id, payment.charges.size(), payment.Total());
}

leases::AmountPayment ReadAmountPayment(const PayArguments& given) {
    leases::AmountPayment amount{ReadPayment(given),
                                 ReadAmount("--amount", given.amount.value_or("")), given.rentPart};
    const std::vector<std::string> errors = leases::AmountErrors(amount);
    if (!errors.empty()) throw platform::Error("--amount: " + errors.front());
    SetOrder(amount.payment, given.order);
    return amount;
}

void PayAmount(const PayArguments& given) {
    const leases::AmountPayment amount = ReadAmountPayment(given);
    const std::string outlook = leases::DescribeAmount(amount);
    const std::int32_t id = leases::SubmitAmount(amount);
    std::cout << fmt::format("Transaction {}: {}: {}\n", id,
                             platform::MoneyToFixedText(amount.received), outlook);
}

void AddAmountOptions(CLI::App& command, PayArguments& given) {
    CLI::Option* amount = command
                              .add_option("--amount", given.amount,
                                          "What came in: pays the oldest charges first, the last "
                                          "one in part; a surplus becomes the tenant's credit")
                              ->type_name("A")
                              ->check(IsValue());
    command.add_option("--order", given.order, "The charges (IdRentLog) that are paid first")
        ->type_name("ID,ID")
        ->delimiter(',')
        ->needs(amount);
    command
        .add_option("--rent-part", given.rentPart,
                    "If a rent is paid in part: the part that moves the next due date when it is "
                    "paid: the open one (as a rule) or the paid one")
        ->transform(CLI::CheckedTransformer(std::map<std::string, leases::RentPart>{
            {"open", leases::RentPart::Open}, {"paid", leases::RentPart::Paid}}))
        ->type_name("open|paid")
        ->needs(amount);
    command.add_flag("--preview", given.preview, "Print what would be written, and change nothing")
        ->needs(amount);
}

} // namespace

void AddPay(CLI::App& line, const Options& options) {
    CLI::App* command =
        line.add_subcommand("pay", "Pay all open charges of a lease, or an amount that came in");
    auto given = std::make_shared<PayArguments>();
    command->add_option("lease", given->lease, "The lease's IdLease")->required();
    command
        ->add_option("--class", given->rentClass,
                     "The charges to pay: 1 rent and fees, 2 subsidy, 3 deposit")
        ->check(CLI::Range(1, 3))
        ->capture_default_str();
    command->add_option("--date", given->date, "The day of the payment, by default today")
        ->type_name("MM/DD/YYYY")
        ->check(IsDate());
    command
        ->add_option("--from", given->from,
                     "Who pays, by default the tenant or the subsidy's payor")
        ->type_name(kPartyForms)
        ->check(IsValue());
    command
        ->add_option("--to", given->to,
                     "The receiving account, by default the one of the last payment")
        ->type_name("ACCOUNT")
        ->check(IsId());
    command->add_option("--check", given->check, "The check's number")
        ->type_name("N")
        ->check(IsValue());
    AddAmountOptions(*command, *given);
    command->callback([given, &options] {
        OpenBooks(options, given->preview ? Purpose::Read : Purpose::Write);
        if (given->preview) return PrintPreview(leases::PreviewAmount(ReadAmountPayment(*given)));
        BookAndPrint([&] { given->amount ? PayAmount(*given) : PayCharges(*given); });
    });
}

} // namespace vestrelctl
