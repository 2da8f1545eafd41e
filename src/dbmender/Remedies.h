#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "dbmender/Diagnosis.h"
#include "shell/SampleLife.h"

namespace dbmender {

enum class Remedy {
    WriteVersion, ///< the database is used as it is, once its version is told
    MakeEmpty,
    MakeSample,
    UseExisting,
};

/// What helps, and where.
struct Choice {
    Remedy remedy = Remedy::MakeEmpty;
    std::filesystem::path folder;
};

/// What can be offered, the best first.
std::vector<Remedy> RemediesFor(const Diagnosis& diagnosis);

/// A folder to propose: that of the database itself where it helps to use that, else one beside the
/// program in which no database stands.
std::filesystem::path ProposedFolder(const Diagnosis& diagnosis, Remedy remedy);

/// Why the choice can't be followed; empty when it can.
std::string Objection(const Choice& choice);

/// Does it, and registers the folder under the name. An Error when that fails; a database that was
/// made by then stays. What `progress` throws ends the making of the sample.
void Apply(const Choice& choice, const std::string& dbName,
           const shell::SampleProgress& progress = {});

} // namespace dbmender
