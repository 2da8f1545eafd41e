#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace dbmender {

enum class Condition {
    Ready,
    NotRegistered, ///< no folder has the database's name
    NoFolder,
    NoFile,
    NotADatabase, ///< it can't be opened, or is something else
    NoVersion,    ///< all tables are there, and only the file that tells its version is missing
    TooOld,
    Incomplete, ///< tables or fields are missing though its version is right
};

/// What is known of a database.
struct Diagnosis {
    Condition condition = Condition::Ready;
    std::filesystem::path folder; ///< empty when it isn't registered
    std::int16_t version = 0;     ///< 0 when it isn't told
    std::string detail;           ///< what is missing, or why it can't be opened
};

/// The database in a folder. It is only read.
Diagnosis Examine(const std::filesystem::path& folder);

/// The database that the registry has under this name.
Diagnosis ExamineRegistered(const std::string& dbName);

/// What is wrong, in one sentence and with its place, for a person.
std::string Explain(const Diagnosis& diagnosis);

} // namespace dbmender
