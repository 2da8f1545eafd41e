#include <cstdint>
#include <iostream>
#include <memory>

#include <fmt/core.h>

#include "core/TableCsv.h"
#include "mortgages/AmortGrid.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

void PrintAmortization(std::int32_t idMortgage) {
    mortgages::clsMortgage mortgage;
    if (!mortgage.LoadMtg(idMortgage)) {
        throw platform::Error(fmt::format("There is no mortgage {}", idMortgage));
    }
    mortgage.ReCalc();
    core::WriteCsv(mortgages::AmortGrid(mortgage, mortgages::PrintedColumns::All), std::cout);
}

} // namespace

void AddAmortize(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("amortize", "A mortgage's schedule as CSV");
    auto id = std::make_shared<std::int32_t>(0);
    command->add_option("id", *id, "The mortgage's IdMortgage")->required();
    command->callback([id, &options] {
        OpenDatabase(options, Purpose::Read);
        PrintAmortization(*id);
    });
}

} // namespace vestrelctl
