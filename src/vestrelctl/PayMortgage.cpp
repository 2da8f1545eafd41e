#include <cstdint>
#include <memory>
#include <string>

#include "core/RecordKinds.h"
#include "mortgages/MortgagePayment.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Words.h"

namespace vestrelctl {

namespace {

struct MortgageWords {
    std::int32_t mortgage = 0;
    std::string date;
    std::int32_t from = 0;
    std::int32_t to = 0;
    std::string check;
};

void SetAccount(std::int32_t given, std::int32_t& account, std::string& name) {
    if (given == 0) return;
    account = given;
    name = NameOf(core::kAccount, given);
}

void Pay(const MortgageWords& words) {
    mortgages::MortgagePayment payment = mortgages::ProposeMortgagePayment(words.mortgage);
    if (!words.date.empty()) payment.dateEffective = platform::Date::Parse(words.date);
    SetAccount(words.from, payment.fromAccount, payment.fromName);
    SetAccount(words.to, payment.toAccount, payment.toName);
    payment.checkNumber = words.check;
    mortgages::SelectAll(payment, mortgages::ChargeChoice::All, true);
    if (payment.charges.empty()) throw platform::Error("There is no open charge to pay");
    const std::int32_t id =
        mortgages::SubmitMortgagePayment(payment, mortgages::OpenedFrom::Elsewhere);
    PrintPaid(id, payment.charges.size(), payment.PaidAmount());
}

} // namespace

void AddPayMortgage(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("pay-mortgage", "Pay all open charges of a mortgage");
    auto words = std::make_shared<MortgageWords>();
    command->add_option("mortgage", words->mortgage, "The mortgage's IdMortgage")->required();
    command->add_option("--date", words->date, "The day of the payment, today without it")
        ->type_name("MM/DD/YYYY")
        ->check(IsDay());
    command->add_option("--from", words->from, "The paying account")->type_name("ACCOUNT");
    command->add_option("--to", words->to, "The receiving account")->type_name("ACCOUNT");
    command->add_option("--check", words->check, "The check's number")->type_name("N");
    command->callback([words, &options] {
        OpenBooks(options);
        Pay(*words);
    });
}

} // namespace vestrelctl
