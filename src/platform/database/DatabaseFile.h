#pragma once

#include <SQLiteCpp/Database.h>

#include <chrono>
#include <filesystem>
#include <memory>

#include "platform/database/Connection.h"

namespace platform {

/// Opens or makes a database file as `mode` says and sets it up: write-ahead log, a commit that
/// outlives a power cut, a modest cache. Throws a DatabaseError that names the file and the reason;
/// a file that could not be set up is removed again if it was made here.
std::unique_ptr<SQLite::Database> OpenDatabaseFile(const std::filesystem::path& file,
                                                   OpenMode mode);

/// Gives a database in memory a name, by which OpenDatabaseFile can open it once, in any mode, on
/// this thread and during this object's lifetime.
class InMemory {
  public:
    explicit InMemory(std::unique_ptr<SQLite::Database> database);
    ~InMemory();
    InMemory(const InMemory&) = delete;
    InMemory& operator=(const InMemory&) = delete;

    static std::filesystem::path Name();
};

/// Sets how long connections opened from now on wait for another program that is writing; a test in
/// which one waits in vain sets less.
void SetBusyTimeout(std::chrono::milliseconds timeout);

/// Longer than any unit of work of ours takes, and short enough for a user who waits at a screen.
inline constexpr std::chrono::milliseconds kBusyTimeout{5000};

} // namespace platform
