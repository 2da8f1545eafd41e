#include <algorithm>
#include <iostream>
#include <map>

#include <fmt/core.h>

#include "exchange/FinExport.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Arguments.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

struct ExportWords {
    exchange::FinExportRequest request;
    bool isNew = false;
    bool all = false;
    std::string from;
    std::string to;
    bool mark = false;
    bool limit = false;
    std::filesystem::path file;
};

/// Sets the range. If only one of its days is given, the other is the day that the screen proposes.
void ChooseRange(const ExportWords& words, exchange::ExportRange& range) {
    range = {exchange::TransRange::New,
             platform::DateAdd(platform::Interval::Month, -1, platform::Today()),
             platform::Today()};
    if (words.all) range.range = exchange::TransRange::All;
    if (words.from.empty() && words.to.empty()) return;
    range.range = exchange::TransRange::DateRange;
    if (!words.from.empty()) range.start = platform::Date::Parse(words.from);
    if (!words.to.empty()) range.end = platform::Date::Parse(words.to);
    if (range.start > range.end) {
        throw platform::Error("Start Date must be earlier than End Date");
    }
}

void Export(const ExportWords& words) {
    exchange::FinExportRequest request = words.request;
    ChooseRange(words, request.range);
    if (words.mark) request.mark = exchange::MarkExported::Yes;
    if (words.limit) request.limit = exchange::LimitLength::Yes;
    const exchange::FinExportObjection objection = exchange::ObjectionTo(request);
    if (!objection.text.empty()) throw platform::Error(objection.text);
    for (auto id = request.accounts.begin(); id != request.accounts.end(); ++id) {
        AccountName("--account", *id);
        // Otherwise its transactions would be in the file twice.
        if (std::find(request.accounts.begin(), id, *id) != id) {
            throw platform::Error(fmt::format("--account: {} is given twice", *id));
        }
    }
    // A script that sees the export fail runs it again, although its marks have been made already.
    CheckOutput();
    std::cout << exchange::RunFinExport(request, words.file) << '\n';
}

} // namespace

void AddExport(CLI::App& line, const Options& options) {
    CLI::App* command =
        line.add_subcommand("export", "Write transactions for an outside bookkeeping program");
    auto words = std::make_shared<ExportWords>();
    const std::map<std::string, exchange::FinType> formats = {{"csv", exchange::FinType::Csv},
                                                              {"qif", exchange::FinType::Qif},
                                                              {"iif", exchange::FinType::Iif}};
    command->add_option("--format", words->request.type, "The form of the file")
        ->required()
        ->type_name("csv|qif|iif")
        ->transform(CLI::Transformer(formats, CLI::ignore_case).description(""));
    command
        ->add_option("--account", words->request.accounts,
                     "An account to export; may be given several times")
        ->required()
        ->expected(1)
        ->take_all()
        ->type_name("N");
    CLI::Option* isNew = command->add_flag("--new", words->isNew,
                                           "Transactions not yet exported, which is the default");
    CLI::Option* all = command->add_flag("--all", words->all, "All transactions")->excludes(isNew);
    const auto day = [&](const char* name, std::string& text, const char* what) {
        command->add_option(name, text, what)
            ->type_name("MM/DD/YYYY")
            ->check(IsDate())
            ->excludes(isNew)
            ->excludes(all);
    };
    day("--from", words->from, "Transactions from this day on, by default a month ago");
    day("--to", words->to, "Transactions up to this day, by default today");
    command->add_flag("--mark", words->mark, "Mark them as exported");
    command->add_flag("--limit-length", words->limit,
                      "Cut names of accounts and categories to 15 letters");
    command->add_option("file", words->file, "The file to write")->required();
    command->callback([words, &options] {
        OpenDatabase(options, words->mark ? Purpose::Write : Purpose::Read);
        Export(*words);
    });
}

} // namespace vestrelctl
