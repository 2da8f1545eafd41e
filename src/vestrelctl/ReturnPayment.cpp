#include "leases/ReturnPayment.h"

#include <cstdint>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include <fmt/core.h>

#include "leases/mLease.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Arguments.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

struct ReturnArguments {
    std::int32_t transaction = 0;
    std::string date;
    std::optional<std::string> fee;
    std::string nextDue;
    bool preview = false;
};

leases::PaymentReturn ReadReturn(const ReturnArguments& given) {
    leases::PaymentReturn returned = leases::ProposeReturn(given.transaction);
    if (!given.date.empty()) returned.date = platform::Date::Parse(given.date);
    if (given.fee) returned.fee = ReadAmount("--fee", *given.fee);
    if (!given.nextDue.empty()) {
        if (!returned.dueNow.IsSet())
            throw platform::Error("--next-due: the payment settles no rent that moves it");
        returned.dueAfter = platform::Date::Parse(given.nextDue);
    }
    const std::vector<std::string> errors = leases::ReturnErrors(returned);
    if (!errors.empty()) throw platform::Error(errors.front());
    return returned;
}

void Return(const ReturnArguments& given) {
    const std::int32_t idLease = leases::ProposeReturn(given.transaction).payment.idLease;
    leases::UpdateLeaseById(idLease, leases::WalkMode::CatchUp);
    const leases::PaymentReturn returned = ReadReturn(given);
    const std::int32_t id = leases::SubmitReturn(returned);
    std::cout << fmt::format("Transaction {}: {}, returns transaction {}\n", id,
                             platform::MoneyToFixedText(-returned.amount), given.transaction);
}

} // namespace

void AddReturnPayment(CLI::App& line, const Options& options) {
    CLI::App* command =
        line.add_subcommand("return-payment", "Undo a payment of a lease that the bank returned");
    auto given = std::make_shared<ReturnArguments>();
    command->add_option("transaction", given->transaction, "The payment's IdTransaction")
        ->required();
    command->add_option("--date", given->date, "The day of the return, by default today")
        ->type_name("MM/DD/YYYY")
        ->check(IsDate());
    command->add_option("--fee", given->fee, "The bank's fee, charged to the tenant")
        ->type_name("A")
        ->check(IsValue());
    command
        ->add_option("--next-due", given->nextDue,
                     "The lease's next due date, by default back by the rents that were paid")
        ->type_name("MM/DD/YYYY")
        ->check(IsDate());
    command->add_flag("--preview", given->preview,
                      "Print what would be written, and change nothing");
    command->callback([given, &options] {
        OpenBooks(options, given->preview ? Purpose::Read : Purpose::Write);
        if (given->preview) return PrintPreview(leases::PreviewReturn(ReadReturn(*given)));
        BookAndPrint([&] { Return(*given); });
    });
}

} // namespace vestrelctl
