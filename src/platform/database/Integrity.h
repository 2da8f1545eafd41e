#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace platform {

enum class CheckDepth {
    Quick, ///< the file's structure and every row's, in a fraction of the time
    Full,  ///< the indexes against the rows besides
};

/// Runs the engine's own check of a database file. Returns what is wrong, a line each, at most a
/// hundred; nothing for a sound file. Throws a DatabaseError if it can't be opened or read at all.
std::vector<std::string> CheckIntegrity(const std::filesystem::path& database, CheckDepth depth);

} // namespace platform
