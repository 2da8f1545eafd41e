#include <iostream>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/Session.h"
#include "exchange/Port.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

exchange::PortWatcher PortPrinter() {
    return {.status =
                [](std::string_view lines) {
                    std::cout << lines;
                    if (!lines.ends_with('\n')) std::cout << '\n';
                },
            .progress = {},
            // A script can't be asked; the end of the import says how many there were.
            .addAgain = {}};
}

struct ImportWords {
    std::filesystem::path file;
    bool test = false;
    bool overwrite = false;
};

void Import(const ImportWords& words) {
    using namespace exchange;
    const ImportOutcome outcome =
        ImportDatabase(words.file, words.test ? ImportMode::Test : ImportMode::Write,
                       words.overwrite ? ImportRows::Overwrite : ImportRows::Append,
                       ImportMessages::Quiet, PortPrinter());
    if (outcome.known > 0) {
        std::cerr << fmt::format(
            "Note: {} of the {} records were in the database already and are in it twice now\n",
            outcome.known, outcome.written);
    }
    if (outcome.Succeeded()) return;
    const std::string place = outcome.line > 0 ? fmt::format(" (line {})", outcome.line) : "";
    throw platform::Error("An error occured while reading the import file, " + outcome.error +
                          place);
}

} // namespace

void AddExportText(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("export-text", "Write tables to a text file");
    auto tables = std::make_shared<std::vector<std::string>>();
    auto file = std::make_shared<std::filesystem::path>();
    command
        ->add_option("--table", *tables,
                     "A table to write; may be given several times, by default all")
        ->expected(1)
        ->take_all()
        ->type_name("T");
    command->add_option("file", *file, "The file to write")->required();
    command->callback([tables, file, &options] {
        OpenDatabase(options, Purpose::Read);
        if (tables->empty()) *tables = core::ListTables(core::App().Connection).names;
        exchange::WriteTables(*tables, *file, PortPrinter());
    });
}

void AddImportText(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("import-text", "Add the tables of a text file");
    auto words = std::make_shared<ImportWords>();
    command->add_flag("--test", words->test, "Only check the file");
    command->add_flag("--overwrite", words->overwrite,
                      "Replace the rows of each table in the file; a copy of the database is kept");
    command->add_option("file", words->file, "The file to read")->required();
    command->callback([words, &options] {
        OpenDatabase(options, words->test ? Purpose::Read : Purpose::Write);
        CheckOutput();
        Import(*words);
    });
}

} // namespace vestrelctl
