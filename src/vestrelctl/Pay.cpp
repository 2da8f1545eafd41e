#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include <fmt/core.h>

#include "leases/RentPayment.h"
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

void Pay(const PayArguments& given) {
    leases::RentPayment payment =
        leases::ProposePayment(given.lease, static_cast<leases::RentClass>(given.rentClass));
    if (payment.charges.empty()) throw platform::Error("There is no open charge to pay");
    SetParties(payment, given);
    if (!given.date.empty()) payment.dateEffective = platform::Date::Parse(given.date);
    payment.checkNumber = given.check;
    payment.description = platform::Trim(payment.description);
    const std::int32_t id = leases::SubmitPayment(payment);
    PrintPaid(id, payment.charges.size(), payment.Total());
}

} // namespace

void AddPay(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("pay", "Pay all open charges of a lease");
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
    command->callback([given, &options] {
        OpenBooks(options, Purpose::Write);
        BookAndPrint([&] { Pay(*given); });
    });
}

} // namespace vestrelctl
