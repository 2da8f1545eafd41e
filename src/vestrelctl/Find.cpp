#include <fmt/core.h>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "core/Globals.h"
#include "platform/values/Csv.h"
#include "search/Finder.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

constexpr std::size_t kMostOfAKind = 1000;

void PrintFound(const std::string& words) {
    search::Finder finder(core::App().Connection);
    while (!finder.Step()) {
    }
    const std::vector<search::HitGroup> groups = finder.Find(words, kMostOfAKind);
    std::cout << "\"Group\",\"RecordKind\",\"RecordId\",\"Title\",\"Detail\"\n";
    for (const search::HitGroup& group : groups) {
        for (const search::Hit& hit : group.hits) {
            std::cout << platform::CsvText(group.name) << ',' << core::KindNumber(hit.record->kind)
                      << ',' << hit.record->id << ',' << platform::CsvText(hit.title) << ','
                      << platform::CsvText(hit.detail) << '\n';
        }
        if (group.hasMore) {
            std::cerr << fmt::format("only the first {} of {} are printed\n", kMostOfAKind,
                                     group.name);
        }
    }
    if (const std::string notice = finder.Notice(); !notice.empty()) std::cerr << notice << '\n';
}

} // namespace

void AddFind(CLI::App& line, const Options& options) {
    CLI::App* command =
        line.add_subcommand("find", "The records that have all of these words, as CSV");
    const auto words = std::make_shared<std::vector<std::string>>();
    command->add_option("words", *words, "Words, amounts, dates, check numbers")
        ->type_name("WORD")
        ->required();
    command->callback([&options, words] {
        OpenBooks(options, Purpose::Read);
        std::string text;
        for (const std::string& word : *words)
            text += word + ' ';
        PrintFound(text);
    });
}

} // namespace vestrelctl
