#include <iostream>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/Session.h"
#include "exchange/Backup.h"
#include "exchange/Restore.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

void BackUp(const exchange::BackupChoice& choice) {
    exchange::BackupConfig config;
    exchange::LoadBackupConfig(config);
    const exchange::BackupReport report =
        exchange::RunBackup(config, choice, [](const exchange::BackupLine& line) {
            if (line.result.empty()) return; // it is still running
            std::cout << fmt::format("{}: {}\n", line.action, line.result) << std::flush;
        });
    if (report.outcome == exchange::BackupOutcome::Failed) throw platform::Error(report.text);
    if (exchange::ContainersLeft(exchange::Chosen(config, choice)) > 1) return;
    if (config.keepPeriods < 1) {
        throw platform::Error("no backup is left: the settings don't keep one for a whole day");
    }
}

struct RestoreWords {
    std::filesystem::path container;
    std::filesystem::path folder;
    bool list = false;
    bool databaseOnly = false;
};

void PrintRestored(const exchange::RestoredFile& file) {
    if (file.reason.empty()) {
        std::cout << file.restored.string() << '\n';
    } else {
        std::cout << fmt::format("Not restored: {}: {}\n", file.filePath, file.reason);
    }
}

void Restore(const RestoreWords& words) {
    if (words.list) {
        std::cout << exchange::ListAsCsv(exchange::ListContainer(words.container));
        return;
    }
    const exchange::RestoreReport report =
        exchange::RestoreContainer(words.container, std::filesystem::absolute(words.folder),
                                   words.databaseOnly ? exchange::RestoreScope::DatabaseOnly
                                                      : exchange::RestoreScope::Everything,
                                   PrintRestored);
    for (const std::string& fault : report.faults)
        std::cout << "Fault in the database: " << fault << '\n';
    if (report.IsWhole()) {
        std::cout << "The database was checked and is sound.\n";
        return;
    }
    throw platform::Error(!report.hasDatabase      ? "the backup holds no whole database"
                          : !report.faults.empty() ? "the restored database is damaged"
                                                   : "not every file could be restored");
}

} // namespace

void AddBackup(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("backup",
                                            "Make a backup, as the settings of the "
                                            "backup say");
    auto folder = std::make_shared<std::string>();
    auto databaseOnly = std::make_shared<bool>(false);
    command->add_option("--to", *folder, "The folder to make it in, instead of the usual one")
        ->type_name("DIR");
    command->add_flag("--database-only", *databaseOnly,
                      "Without document templates and attached files");
    command->callback([folder, databaseOnly, &options] {
        // The day of the backup is stored beside the books.
        if (options.readOnly) throw platform::Error("--read-only: a backup stores its date");
        OpenDatabase(options, Purpose::Read);
        core::CloseDatabase(core::App().Connection);
        exchange::BackupChoice choice;
        if (!folder->empty()) choice.folder = std::filesystem::absolute(*folder).string();
        if (*databaseOnly) choice.allFiles = false;
        BackUp(choice);
    });
}

void AddRestore(CLI::App& line) {
    CLI::App* command =
        line.add_subcommand("restore", "List what a backup holds, or extract it into a new folder");
    auto words = std::make_shared<RestoreWords>();
    command->add_option("container", words->container, "The backup, Vestrel.N.vbk")->required();
    auto* const what = command->add_option_group("What to do");
    what->add_flag("--list", words->list, "List what it holds");
    what->add_option("--to", words->folder, "The new folder to extract into")->type_name("DIR");
    what->require_option(1);
    command->add_flag("--database-only", words->databaseOnly,
                      "Without document templates and attached files");
    command->callback([words] { Restore(*words); });
}

} // namespace vestrelctl
