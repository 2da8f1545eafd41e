#include <cstdint>
#include <iostream>
#include <memory>

#include <fmt/core.h>

#include "mortgages/AmortGrid.h"
#include "platform/values/Csv.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

void PrintSchedule(std::int32_t idMortgage) {
    mortgages::clsMortgage mortgage;
    if (!mortgage.LoadMtg(idMortgage)) {
        throw platform::Error(fmt::format("There is no mortgage {}", idMortgage));
    }
    mortgage.ReCalc();

    const mortgages::AmortGrid grid(mortgage, mortgages::PrintedColumns(true));
    std::string line;
    for (const mortgages::AmortColumn& column : grid.Columns()) {
        if (!line.empty()) line += ',';
        line += platform::CsvText(column.caption);
    }
    std::cout << line << '\n';
    for (std::size_t row = 0; row < grid.RowCount(); ++row) {
        line.clear();
        for (std::size_t column = 0; column < grid.Columns().size(); ++column) {
            if (column > 0) line += ',';
            platform::AppendCsvCell(line, grid.Value(row, column));
        }
        std::cout << line << '\n';
    }
}

} // namespace

void AddAmortize(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("amortize", "A mortgage's schedule as CSV");
    auto id = std::make_shared<std::int32_t>(0);
    command->add_option("id", *id, "The mortgage's IdMortgage")->required();
    command->callback([id, &options] {
        OpenDatabase(options, Purpose::Read);
        PrintSchedule(*id);
    });
}

} // namespace vestrelctl
