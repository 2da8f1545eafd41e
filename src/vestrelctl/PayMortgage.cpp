#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include <fmt/core.h>

#include "mortgages/MortgagePayment.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "vestrelctl/Arguments.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

struct PayMortgageArguments {
    std::int32_t mortgage = 0;
    std::string date;
    std::optional<std::int32_t> from;
    std::optional<std::int32_t> to;
    std::string check;
    std::string extra;
};

/// Rejects, as wrong usage, text that isn't an amount above 0.
CLI::Validator IsPositiveAmount() {
    return {[](const std::string& text) {
                const auto amount = platform::TryParseMoney(text);
                if (amount && *amount > platform::Currency()) return std::string();
                return "'" + text + "' is not an amount above 0";
            },
            "", ""};
}

void SetAccount(std::string_view option, std::optional<std::int32_t> given, books::Party& account) {
    if (given) {
        account.id = *given;
        account.description = AccountName(option, *given);
    }
    if (account.id == 0 && account.description.empty()) {
        throw platform::Error(
            fmt::format("{}: the mortgage doesn't name this account; name it", option));
    }
}

void Pay(const PayMortgageArguments& given) {
    mortgages::MortgagePayment payment = mortgages::ProposeMortgagePayment(given.mortgage);
    if (!given.extra.empty()) payment.extraPrincipal = *platform::TryParseMoney(given.extra);
    if (payment.charges.empty() && payment.extraPrincipal.IsZero())
        throw platform::Error("There is no open charge to pay");
    SetAccount("--from", given.from, payment.from);
    SetAccount("--to", given.to, payment.to);
    if (!given.date.empty()) payment.dateEffective = platform::Date::Parse(given.date);
    payment.checkNumber = given.check;
    payment.description = platform::Trim(payment.description);
    mortgages::SelectAll(payment, mortgages::ChargeChoice::All, true);
    const std::int32_t id = mortgages::SubmitMortgagePayment(payment);
    PrintPaid(id, payment.charges.size(), payment.PaidAmount());
}

} // namespace

void AddPayMortgage(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("pay-mortgage", "Pay all open charges of a mortgage");
    auto given = std::make_shared<PayMortgageArguments>();
    command->add_option("mortgage", given->mortgage, "The mortgage's IdMortgage")->required();
    command->add_option("--date", given->date, "The day of the payment, by default today")
        ->type_name("MM/DD/YYYY")
        ->check(IsDate());
    command
        ->add_option("--from", given->from, "The paying account, by default the one that paid last")
        ->type_name("ACCOUNT")
        ->check(IsId());
    command->add_option("--to", given->to, "The receiving account, by default the lender")
        ->type_name("ACCOUNT")
        ->check(IsId());
    command->add_option("--check", given->check, "The check's number")
        ->type_name("N")
        ->check(IsValue());
    command
        ->add_option("--extra", given->extra,
                     "Principal to pay beyond the charges, booked on the current period")
        ->type_name("AMOUNT")
        ->check(IsPositiveAmount());
    command->callback([given, &options] {
        OpenBooks(options, Purpose::Write);
        BookAndPrint([&] { Pay(*given); });
    });
}

} // namespace vestrelctl
