#include <iostream>
#include <memory>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/TableCsv.h"
#include "outlook/ForecastTable.h"
#include "outlook/LookAhead.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Arguments.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

/// Throws Error after the rows if the run would skip records.
void PrintForecast(platform::Date until) {
    const outlook::Forecast forecast = outlook::LookAhead(core::App().Connection.File(), until);
    core::WriteCsv(outlook::ForecastTable(forecast), std::cout);
    std::string faults;
    for (const std::string& fault : forecast.faults)
        faults += (faults.empty() ? "" : "; ") + fault;
    if (!faults.empty()) throw platform::Error(faults);
}

} // namespace

void AddPreview(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand(
        "preview", "What a run on a coming day would post, and what comes until then, as CSV");
    auto until = std::make_shared<std::string>();
    command->add_option("--until", *until, "The day to look ahead to")
        ->type_name("MM/DD/YYYY")
        ->check(IsDate())
        ->required();
    command->callback([until, &options] {
        OpenDatabase(options, Purpose::Read);
        PrintForecast(platform::Date::Parse(*until));
    });
}

} // namespace vestrelctl
