#pragma once

#include <SQLiteCpp/Database.h>

#include <filesystem>
#include <memory>

#include "platform/database/Connection.h"

namespace platform {

/// Opens or makes a database file as `mode` says and sets it up: write-ahead log, a commit that
/// outlives a power cut, a modest cache. A DatabaseError names the file and the reason; a file that
/// could not be set up is removed again if it was made here.
std::unique_ptr<SQLite::Database> OpenDatabaseFile(const std::filesystem::path& file,
                                                   OpenMode mode);

} // namespace platform
