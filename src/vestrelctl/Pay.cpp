#include <cstdint>
#include <memory>
#include <string>

#include "core/RecordKinds.h"
#include "leases/RentPayment.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Words.h"

namespace vestrelctl {

namespace {

struct PayWords {
    std::int32_t lease = 0;
    int rentClass = 1;
    std::string date;
    std::int32_t to = 0;
    std::string check;
};

void Pay(const PayWords& words) {
    leases::RentPayment payment =
        leases::ProposePayment(words.lease, static_cast<leases::RentClass>(words.rentClass));
    if (!words.date.empty()) payment.dateEffective = platform::Date::Parse(words.date);
    if (words.to != 0) {
        payment.toAccount = words.to;
        payment.toName = NameOf(core::kAccount, words.to);
    }
    payment.checkNumber = words.check;
    if (payment.charges.empty()) throw platform::Error("There is no open charge to pay");
    const std::int32_t id = leases::SubmitPayment(payment);
    PrintPaid(id, payment.charges.size(), payment.Total());
}

} // namespace

void AddPay(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("pay", "Pay all open charges of a lease");
    auto words = std::make_shared<PayWords>();
    command->add_option("lease", words->lease, "The lease's IdLease")->required();
    command
        ->add_option("--class", words->rentClass,
                     "The charges to pay: 1 rent and fees, 2 subsidy, 3 deposit")
        ->check(CLI::Range(1, 3))
        ->capture_default_str();
    command->add_option("--date", words->date, "The day of the payment, today without it")
        ->type_name("MM/DD/YYYY")
        ->check(IsDay());
    command
        ->add_option("--to", words->to, "The receiving account, that of the last payment without")
        ->type_name("ACCOUNT");
    command->add_option("--check", words->check, "The check's number")->type_name("N");
    command->callback([words, &options] {
        OpenBooks(options);
        Pay(*words);
    });
}

} // namespace vestrelctl
