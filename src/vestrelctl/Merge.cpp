#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "documents/MergeSource.h"
#include "documents/mDocManagement.h"
#include "exchange/OwnFiles.h"
#include "platform/database/Recordset.h"
#include "platform/system/Paths.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

struct MergeArguments {
    std::string letter;
    core::RecordKind kind = core::kNone;
    std::int32_t id = 0;
    bool allLate = false;
    std::string output;
};

/// Returns the template with this `IdDoc`, or a file that needn't be on the list.
documents::DocTemplate FindLetter(const std::string& text) {
    const auto number = platform::TryParseNumber(text);
    if (number && !platform::FileExists(text)) {
        const auto id = static_cast<std::int32_t>(*number);
        if (auto letter = documents::FindDocTemplate(id)) return *letter;
        throw platform::Error("There is no template with IdDoc " + text);
    }
    return {0, std::filesystem::path(text).stem().string(), text};
}

std::vector<std::int32_t> LateLeases() {
    platform::Recordset rows = core::Read(
        "SELECT IdLease FROM Lease WHERE (Hide = False) "
        "AND (RentStatus IN ('Late', 'Warning', 'Eviction')) ORDER BY IdLease");
    std::vector<std::int32_t> ids;
    for (; !rows.Eof(); rows.MoveNext())
        ids.push_back(rows["IdLease"].AsLong());
    return ids;
}

documents::MergedDocument MergeOne(const documents::DocTemplate& letter, core::RecordKind kind,
                                   std::int32_t id,
                                   const std::optional<std::filesystem::path>& output) {
    documents::MergedDocument document = documents::MergeDocument(letter, kind, id, output);
    fmt::print("{}\n", document.file.string());
    return document;
}

void MergeAllLate(const documents::DocTemplate& letter, const std::string& folder) {
    std::filesystem::create_directories(folder);
    const std::string ending = std::filesystem::path(letter.filePath).extension().string();
    const std::vector<std::int32_t> leases = LateLeases();
    for (const std::int32_t id : leases) {
        MergeOne(letter, core::kLease, id,
                 std::filesystem::path(folder) /
                     fmt::format("{} - lease {}{}", letter.description, id, ending));
    }
    fmt::print("{} {} merged\n", leases.size(), leases.size() == 1 ? "letter" : "letters");
}

void Merge(const MergeArguments& arguments) {
    const documents::DocTemplate letter = FindLetter(arguments.letter);
    if (arguments.allLate) return MergeAllLate(letter, arguments.output);
    std::optional<std::filesystem::path> output;
    if (!arguments.output.empty()) {
        output = arguments.output;
        exchange::RefuseOwnFile(*output);
    }
    if (!MergeOne(letter, arguments.kind, arguments.id, output).merged) {
        throw platform::Error(fmt::format("There is no {} {}; the template was copied as it is",
                                          core::RecordKindName(arguments.kind), arguments.id));
    }
}

} // namespace

void AddMerge(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("merge", "Merge a record into a letter");
    auto arguments = std::make_shared<MergeArguments>();
    command->add_option("template", arguments->letter, "The template: an IdDoc or a file")
        ->required();
    command->add_option("kind", arguments->kind, "The number of the record kind (2: lease)")
        ->required();
    command->add_option("id", arguments->id, "The record's id");
    auto* const allLate = command->add_flag("--all-late", arguments->allLate,
                                            "A letter for each lease whose rent is late");
    command
        ->add_option("--output", arguments->output,
                     "The file to write; with --all-late the folder for the letters")
        ->type_name("FILE");
    command->callback([command, allLate, arguments, &options] {
        if (!documents::HasMergeSource(arguments->kind)) {
            throw CLI::ValidationError("kind", "no letters are merged for records of this kind");
        }
        if (allLate->count() > 0 && (arguments->kind != core::kLease || command->count("id") > 0 ||
                                     arguments->output.empty())) {
            throw CLI::ValidationError("--all-late",
                                       "needs kind 2, no id, and the folder in --output");
        }
        if (allLate->count() == 0 && command->count("id") == 0) {
            throw CLI::RequiredError("id");
        }
        // A letter in the books' own folder is attached to its record.
        OpenBooks(options, arguments->output.empty() ? Purpose::Write : Purpose::Read);
        Merge(*arguments);
    });
}

} // namespace vestrelctl
