#include "dbmender/Remedies.h"

#include <fmt/core.h>

#include "core/FindDatabase.h"
#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "store/CreateDatabase.h"
#include "store/References.h"

namespace dbmender {

namespace fs = std::filesystem;

namespace {

bool HasDatabase(const fs::path& folder) {
    std::error_code ignored;
    return fs::exists(folder / store::kDatabaseFile, ignored);
}

/// The program's own "db", or the first of "db2", "db3", ... without a database.
fs::path FreeFolder() {
    const std::string usual = core::App().AppPath + "db";
    fs::path folder = usual;
    for (int number = 2; HasDatabase(folder); ++number)
        folder = usual + std::to_string(number);
    return folder;
}

std::string ObjectionToMaking(const fs::path& folder) {
    std::error_code ignored;
    if (fs::exists(folder, ignored) && !fs::is_directory(folder, ignored)) {
        return fmt::format("{} is a file, not a folder.", folder.string());
    }
    if (HasDatabase(folder)) {
        return "There is a database in this folder already. It would not be touched: use it, or "
               "choose another folder.";
    }
    return {};
}

/// Zip codes and tax offices stand beside the program, once for all databases; the books do
/// without.
void MakeReferences() {
    if (core::App().HasReferences) return;
    try {
        store::CreateReferences(core::App().AppPath);
    } catch (const platform::Error&) {
        return;
    }
}

} // namespace

std::vector<Remedy> RemediesFor(const Diagnosis& diagnosis) {
    switch (diagnosis.condition) {
        case Condition::Ready:
            return {Remedy::UseExisting, Remedy::MakeEmpty, Remedy::MakeSample};
        case Condition::NoVersion:
            return {Remedy::WriteVersion, Remedy::UseExisting, Remedy::MakeEmpty,
                    Remedy::MakeSample};
        case Condition::NotRegistered:
            return {Remedy::MakeEmpty, Remedy::MakeSample, Remedy::UseExisting};
        case Condition::NoFolder:
        case Condition::NoFile:
        case Condition::NotADatabase:
        case Condition::TooOld:
        case Condition::Incomplete:
            break;
    }
    // Where there were books once, they are more likely to have moved than to be begun anew.
    return {Remedy::UseExisting, Remedy::MakeEmpty, Remedy::MakeSample};
}

fs::path ProposedFolder(const Diagnosis& diagnosis, Remedy remedy) {
    const bool isMaking = remedy == Remedy::MakeEmpty || remedy == Remedy::MakeSample;
    if (!isMaking) return diagnosis.folder;
    if (!diagnosis.folder.empty() && !HasDatabase(diagnosis.folder)) return diagnosis.folder;
    return FreeFolder();
}

std::string Objection(const Choice& choice) {
    if (choice.folder.empty()) return "Choose a folder.";
    if (choice.folder.is_relative()) return "Give the whole path of the folder.";
    if (choice.remedy == Remedy::MakeEmpty || choice.remedy == Remedy::MakeSample) {
        return ObjectionToMaking(choice.folder);
    }
    const Diagnosis found = Examine(choice.folder);
    const Condition wanted =
        choice.remedy == Remedy::WriteVersion ? Condition::NoVersion : Condition::Ready;
    return found.condition == wanted ? std::string() : Explain(found);
}

void Apply(const Choice& choice, const std::string& dbName, const shell::SampleProgress& progress) {
    if (const std::string objection = Objection(choice); !objection.empty()) {
        throw platform::Error(objection);
    }
    switch (choice.remedy) {
        case Remedy::WriteVersion:
            platform::WriteFileAtomically(choice.folder / store::kVersionFile,
                                          std::to_string(store::kDatabaseVersion));
            break;
        case Remedy::MakeEmpty:
            store::CreateDatabase(choice.folder);
            break;
        case Remedy::MakeSample:
            shell::MakeSamplePortfolio(choice.folder, shell::kSampleUnits, platform::Today(),
                                       progress);
            break;
        case Remedy::UseExisting:
            break;
    }
    MakeReferences();
    core::RegisterDatabase(dbName, choice.folder);
}

} // namespace dbmender
