#include <cstdint>
#include <iostream>
#include <memory>
#include <string>

#include <fmt/core.h>

#include "core/Descriptions.h"
#include "core/RecordKinds.h"
#include "leases/Credits.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

void PrintCredit(std::int32_t idLease) {
    const auto balance = [&](core::TransactionClass rentClass) {
        return platform::MoneyToFixedText(leases::CreditBalance(idLease, rentClass));
    };
    std::cout << fmt::format(
        "Lease {}: credit {}, of the subsidy {}, {}\n", idLease,
        balance(core::TransactionClass::Rent), balance(core::TransactionClass::Subsidy),
        leases::SettlesCharges(idLease) ? "settles new charges on the day they fall due"
                                        : "settles nothing by itself");
}

void CheckLease(std::int32_t idLease) {
    if (core::RecordExists(core::kLease, idLease)) return;
    throw platform::Error(fmt::format("There is no lease {}", idLease));
}

} // namespace

void AddCredit(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand(
        "credit", "What a lease's tenant has paid ahead, and whether new charges use it");
    auto lease = std::make_shared<std::int32_t>(0);
    auto settle = std::make_shared<std::string>();
    command->add_option("lease", *lease, "The lease's IdLease")->required();
    command
        ->add_option("--settle", *settle,
                     "Whether the daily run settles new charges from credit as they fall due")
        ->check(CLI::IsMember({"on", "off"}));
    command->callback([lease, settle, &options] {
        OpenBooks(options, settle->empty() ? Purpose::Read : Purpose::Write);
        if (settle->empty()) {
            CheckLease(*lease);
            return PrintCredit(*lease);
        }
        BookAndPrint([&] {
            CheckLease(*lease);
            leases::SetSettlesCharges(*lease, *settle == "on");
            PrintCredit(*lease);
        });
    });
}

} // namespace vestrelctl
