#include "platform/database/DatabaseFile.h"

#include <SQLiteCpp/Exception.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/system/Paths.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

namespace fs = std::filesystem;
using Handle = std::unique_ptr<SQLite::Database>;
using SetUpFile = void (*)(SQLite::Database& database);

std::chrono::milliseconds& BusyTimeout() {
    static std::chrono::milliseconds timeout = kBusyTimeout;
    return timeout;
}

// Returns the database in memory that waits to be opened.
Handle& Lent() {
    thread_local Handle database;
    return database;
}

std::string SystemText(int error) {
    return std::generic_category().message(error);
}

[[noreturn]] void ThrowCannot(const char* action, const fs::path& file, const std::string& reason,
                              int code) {
    throw DatabaseError(std::string("Cannot ") + action + " " + file.string() + ": " + reason,
                        code);
}

int PrimaryCode(const SQLite::Exception& error) {
    return error.getErrorCode() & 0xFF;
}

// `systemError` is the errno that came with the engine's failure, 0 if there was none.
std::string ReasonOf(const SQLite::Exception& error, int systemError, const fs::path& file) {
    if (systemError == ENOSPC || systemError == EDQUOT) return "the disk is full";
    switch (PrimaryCode(error)) {
        case SQLITE_NOTADB:
            return "it is not a database";
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "it is in use by another program";
        case SQLITE_READONLY:
            return "it is read-only";
        case SQLITE_FULL:
            return "the disk is full";
        case SQLITE_CORRUPT:
            return "it is damaged";
        case SQLITE_CANTOPEN:
            if (faccessat(AT_FDCWD, file.c_str(), R_OK, AT_EACCESS) != 0) return SystemText(errno);
            return "its folder can't be written to";
        default:
            return systemError == 0 ? error.what() : SystemText(systemError);
    }
}

void CheckExists(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) {
        ThrowCannot("open", file, "there is no such file", SQLITE_CANTOPEN);
    }
    if (error) ThrowCannot("open", file, error.message(), SQLITE_CANTOPEN);
    if (fs::is_directory(status)) {
        ThrowCannot("open", file, "it is a directory", SQLITE_CANTOPEN);
    }
    // The engine would take an empty file for a new database.
    if (fs::is_regular_file(status) && fs::file_size(file, error) == 0 && !error) {
        ThrowCannot("open", file, "it is not a database", SQLITE_NOTADB);
    }
}

// Makes a file that nobody else can read from the first moment on.
void MakeEmptyFile(const fs::path& file) {
    const int error = MakePrivateFile(file);
    if (error == 0) return;
    ThrowCannot("make", file, error == EEXIST ? "it already exists" : SystemText(error),
                SQLITE_CANTOPEN);
}

// Otherwise the engine would count every piece of memory that it takes, under a lock, for figures
// that nobody needs. The counting can be switched off only before the engine is first used.
void TellEngineNotToCount() {
    static const int told = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    static_cast<void>(told);
}

Handle OpenHandle(const fs::path& file, const std::string& name, int flags, SetUpFile setUp) {
    TellEngineNotToCount();
    Handle database;
    try {
        database = std::make_unique<SQLite::Database>(name, flags | SQLITE_OPEN_NOMUTEX,
                                                      static_cast<int>(BusyTimeout().count()));
        setUp(*database);
        return database;
    } catch (const SQLite::Exception& error) {
        const int systemError = database ? sqlite3_system_errno(database->getHandle()) : 0;
        ThrowCannot("open", file, ReasonOf(error, systemError, file), PrimaryCode(error));
    }
}

void SetUpToRead(SQLite::Database& database) {
    database.exec("PRAGMA cache_size = -8192");
    database.exec("PRAGMA temp_store = MEMORY");
    // The engine opens a file only when it is first asked about.
    database.execAndGet("SELECT Count(*) FROM sqlite_master");
}

void SetUpToWrite(SQLite::Database& database) {
    SetUpToRead(database);
    // The engine falls back to read-only without a message if it may not write.
    if (sqlite3_db_readonly(database.getHandle(), "main") != 0) {
        throw SQLite::Exception("read-only", SQLITE_READONLY);
    }
    database.exec("PRAGMA journal_mode = WAL");
    database.exec("PRAGMA synchronous = FULL");
}

Handle OpenToWrite(const fs::path& file) {
    return OpenHandle(file, file.string(), SQLITE_OPEN_READWRITE, SetUpToWrite);
}

bool IsForbidden(const DatabaseError& error) {
    return error.Code() == SQLITE_CANTOPEN || error.Code() == SQLITE_READONLY;
}

// Returns the engine's name for a file that nobody changes while it is open.
std::string ImmutableName(const fs::path& file) {
    std::string name = "file:";
    for (const char c : file.string()) {
        if (c == '%') {
            name += "%25";
        } else if (c == '?') {
            name += "%3f";
        } else if (c == '#') {
            name += "%23";
        } else {
            name += c;
        }
    }
    return name + "?immutable=1";
}

bool HasUnreadLog(const fs::path& file) {
    std::error_code error;
    const auto size = fs::file_size(fs::path(file) += "-wal", error);
    return !error && size > 0;
}

Handle OpenToRead(const fs::path& file) {
    try {
        return OpenHandle(file, file.string(), SQLITE_OPEN_READONLY, SetUpToRead);
    } catch (const DatabaseError& error) {
        // A write-ahead log needs a file beside the database even for reading. If that can't be
        // made, nobody can be writing either.
        if (!IsForbidden(error) || HasUnreadLog(file)) throw;
    }
    return OpenHandle(file, ImmutableName(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI,
                      SetUpToRead);
}

Handle OpenAsAllowed(const fs::path& file) {
    try {
        return OpenToWrite(file);
    } catch (const DatabaseError& error) {
        if (!IsForbidden(error)) throw;
    }
    return OpenToRead(file);
}

Handle MakeFile(const fs::path& file) {
    MakeEmptyFile(file);
    try {
        return OpenToWrite(file);
    } catch (const DatabaseError&) {
        std::error_code ignored;
        for (const char* companion : {"", "-wal", "-shm"}) {
            fs::path made = file;
            fs::remove(made += companion, ignored);
        }
        throw;
    }
}

} // namespace

InMemory::InMemory(std::unique_ptr<SQLite::Database> database) {
    Lent() = std::move(database);
}

InMemory::~InMemory() {
    Lent().reset();
}

fs::path InMemory::Name() {
    return "a copy in memory";
}

void SetBusyTimeout(std::chrono::milliseconds timeout) {
    BusyTimeout() = timeout;
}

std::unique_ptr<SQLite::Database> OpenDatabaseFile(const fs::path& file, OpenMode mode) {
    if (Lent() && file == InMemory::Name()) return std::move(Lent());
    const fs::path full = fs::absolute(file);
    if (mode == OpenMode::Create) return MakeFile(full);
    CheckExists(full);
    switch (mode) {
        case OpenMode::ReadOnly:
            return OpenToRead(full);
        case OpenMode::ReadWriteIfAllowed:
            return OpenAsAllowed(full);
        case OpenMode::ReadWrite:
        case OpenMode::Create:
            break;
    }
    return OpenToWrite(full);
}

} // namespace platform
