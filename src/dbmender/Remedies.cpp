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

/// Returns whether a folder is in a build folder, which may be deleted at any time together with
/// the books in it.
bool IsInBuildFolder(fs::path folder) {
    std::error_code ignored;
    for (; folder.has_relative_path(); folder = folder.parent_path()) {
        if (fs::exists(folder / "CMakeCache.txt", ignored)) return true;
    }
    return false;
}

/// Returns "db" in the program's directory, or in the user's data directory if the program runs
/// from a build folder; or the first of "db2", "db3", ... without a database.
fs::path FreeFolder() {
    const fs::path program = core::App().AppPath;
    const std::string usual =
        ((IsInBuildFolder(program) ? platform::DataHome() / "Vestrel" : program) / "db").string();
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
        return "There is a database in this folder already, which is never overwritten: use it, "
               "or choose another folder.";
    }
    return {};
}

/// Creates the zip codes and tax offices, which are stored beside the program once for all
/// databases. The books can do without them.
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
        case Condition::SettingsDamaged:
        case Condition::NoFolder:
        case Condition::NoFile:
        case Condition::NotADatabase:
        case Condition::TooOld:
        case Condition::Incomplete:
        case Condition::Damaged:
            break;
    }
    // Books that existed once were more likely moved than given up.
    return {Remedy::UseExisting, Remedy::MakeEmpty, Remedy::MakeSample};
}

fs::path ProposedFolder(const Diagnosis& diagnosis, Remedy remedy) {
    const bool isMaking = remedy == Remedy::MakeEmpty || remedy == Remedy::MakeSample;
    if (!isMaking) return diagnosis.folder;
    const bool isFree = !diagnosis.folder.empty() && !HasDatabase(diagnosis.folder);
    if (isFree && !IsInBuildFolder(diagnosis.folder)) return diagnosis.folder;
    return FreeFolder();
}

std::string Objection(const Choice& choice) {
    if (choice.folder.empty()) return "Choose a folder.";
    if (choice.folder.is_relative()) return "Enter the full path of the folder.";
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
    if (choice.remedy == Remedy::UseExisting || choice.remedy == Remedy::WriteVersion) {
        const Diagnosis found = Examine(choice.folder, Depth::WholeFile);
        if (found.condition == Condition::Damaged) throw platform::Error(Explain(found));
    }
    switch (choice.remedy) {
        case Remedy::WriteVersion:
            platform::WriteFileAtomically(choice.folder / store::kVersionFile,
                                          std::to_string(store::kDatabaseVersion));
            break;
        case Remedy::MakeEmpty:
            MakeFirstBooks(choice.folder, choice.first);
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
