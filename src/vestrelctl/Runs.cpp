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
        const std::vector<shell::PastRun> runs =
            shell::ReadHistory(shell::HistoryFile(core::App().Connection));
        core::WriteCsv(shell::RunRowTable(runs, core::ReadTakenBack()), std::cout);
    });
}

} // namespace vestrelctl
