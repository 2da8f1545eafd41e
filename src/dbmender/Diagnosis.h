#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace dbmender {

enum class Condition {
    Ready,
    NotRegistered,   ///< no folder is registered under the database's name
    SettingsDamaged, ///< what is registered can't be read
    NoFolder,
    NoFile,
    NotADatabase, ///< it can't be opened, or isn't a database
    NoVersion,    ///< all tables are there; only the version file is missing
    TooOld,
    Incomplete, ///< tables or fields are missing though its version is right
    Damaged,    ///< the engine's check finds faults in the file
};

/// The state of a database.
struct Diagnosis {
    Condition condition = Condition::Ready;
    std::filesystem::path folder; ///< empty if it isn't registered
    std::int16_t version = 0;     ///< 0 if it isn't known
    std::string detail;           ///< what is missing or damaged, or why it can't be opened
};

/// Whether the engine checks the whole file, which takes a while for large books.
enum class Depth { Tables, WholeFile };

/// Examines the database in a folder without changing it.
Diagnosis Examine(const std::filesystem::path& folder, Depth depth = Depth::Tables);

/// Examines the whole database that is registered under this name.
Diagnosis ExamineRegistered(const std::string& dbName);

/// Returns whether nothing was ever registered under this name.
bool HasNoBooks(const std::string& dbName);

/// Returns a sentence for the user about what is wrong, and where.
std::string Explain(const Diagnosis& diagnosis);

} // namespace dbmender
