#include <iostream>

#include <fmt/core.h>

#include "core/Globals.h"
#include "exchange/CheckBooks.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

void AddCheck(CLI::App& line, const Options& options) {
    CLI::App* command =
        line.add_subcommand("check", "Check the database and the books; changes nothing");
    command->callback([&options] {
        OpenDatabase(options, Purpose::Read);
        const auto findings = exchange::CheckBooks(core::App().Connection, {});
        for (const exchange::Finding& finding : findings) {
            const bool isFault = finding.severity == exchange::Severity::Fault;
            std::cout << fmt::format("{}: {}. {}\n", isFault ? "Fault" : "Note", finding.what,
                                     finding.advice);
        }
        const std::string summary = exchange::CheckSummary(findings);
        if (exchange::HasFaults(findings)) throw platform::Error(summary);
        std::cout << summary << '\n';
    });
}

} // namespace vestrelctl
