#include <iostream>

#include "core/Globals.h"
#include "core/TableCsv.h"
#include "shell/RunTables.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

void AddRuns(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand(
        "runs", "What the runs of these books posted, each row with its reason, as CSV");
    command->callback([&options] {
        OpenDatabase(options, Purpose::Read);
        std::vector<shell::PastRun> runs =
            shell::ReadHistory(shell::HistoryFile(core::App().Connection));
        const auto taken = shell::ReadTakenRows();
        if (auto earlier = shell::RunOfTakenRows(*taken, runs)) runs.push_back(std::move(*earlier));
        core::WriteCsv(shell::RunRowTable(runs, taken), std::cout);
    });
}

} // namespace vestrelctl
