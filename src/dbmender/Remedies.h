#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "dbmender/Diagnosis.h"
#include "dbmender/FirstBooks.h"
#include "shell/SampleLife.h"

namespace dbmender {

enum class Remedy {
    WriteVersion, ///< writes the version file and uses the database as it is
    MakeEmpty,
    MakeSample,
    UseExisting,
};

/// A remedy and its folder.
struct Choice {
    Remedy remedy = Remedy::MakeEmpty;
    std::filesystem::path folder;
    FirstEntries first = {}; ///< of an empty database
};

/// Returns the remedies to offer, the best first.
std::vector<Remedy> RemediesFor(const Diagnosis& diagnosis);

/// Returns the folder to propose: the database's own if it can be used, otherwise one without a
/// database. Never proposes to create a database inside a build folder.
std::filesystem::path ProposedFolder(const Diagnosis& diagnosis, Remedy remedy);

/// Returns why the choice isn't possible; empty if it is.
std::string Objection(const Choice& choice);

/// Applies the remedy and registers the folder under the name. Throws Error on failure; a database
/// created by then stays. An exception from `progress` ends the making of the sample.
void Apply(const Choice& choice, const std::string& dbName,
           const shell::SampleProgress& progress = {});

} // namespace dbmender
