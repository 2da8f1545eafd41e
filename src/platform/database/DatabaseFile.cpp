#include "platform/database/DatabaseFile.h"

#include <SQLiteCpp/Exception.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/values/Errors.h"

namespace platform {

namespace {

namespace fs = std::filesystem;
using Handle = std::unique_ptr<SQLite::Database>;

constexpr int kBusyMilliseconds = 2000;

std::string SystemText(int error) {
    return std::generic_category().message(error);
}

[[noreturn]] void ThrowCannot(const char* what, const fs::path& file, const std::string& reason,
                              int code) {
    throw DatabaseError(std::string("Cannot ") + what + " " + file.string() + ": " + reason, code);
}

int PrimaryCode(const SQLite::Exception& error) {
    return error.getErrorCode() & 0xFF;
}

std::string ReasonOf(const SQLite::Exception& error, const fs::path& file) {
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
            return error.what();
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
    // The engine would take a file without a byte for a new database.
    if (fs::is_regular_file(status) && fs::file_size(file, error) == 0 && !error) {
        ThrowCannot("open", file, "it is not a database", SQLITE_NOTADB);
    }
}

// A file of its own, which nobody else may read from the first moment on.
void MakePrivateFile(const fs::path& file) {
    const int made = open(file.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (made >= 0) {
        close(made);
        return;
    }
    const int error = errno;
    ThrowCannot("make", file, error == EEXIST ? "it is there already" : SystemText(error),
                SQLITE_CANTOPEN);
}

// The engine would count every piece of memory it takes, under a lock, for figures that nobody asks
// for. That can be told it only before its first use; later it keeps counting.
void TellEngineNotToCount() {
    static const int told = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    static_cast<void>(told);
}

Handle OpenHandle(const std::string& name, int flags) {
    TellEngineNotToCount();
    return std::make_unique<SQLite::Database>(name, flags | SQLITE_OPEN_NOMUTEX, kBusyMilliseconds);
}

// Reads the schema: the engine opens a file only when it is first asked about.
void Touch(SQLite::Database& database) {
    database.execAndGet("SELECT Count(*) FROM sqlite_master");
}

void SetUp(SQLite::Database& database) {
    database.exec("PRAGMA cache_size = -8192");
    database.exec("PRAGMA temp_store = MEMORY");
}

Handle OpenToWrite(const fs::path& file) {
    Handle database = OpenHandle(file.string(), SQLITE_OPEN_READWRITE);
    SetUp(*database);
    Touch(*database);
    // The engine quietly falls back to reading where it may not write.
    if (sqlite3_db_readonly(database->getHandle(), "main") != 0) {
        ThrowCannot("open", file, "it is read-only", SQLITE_READONLY);
    }
    database->exec("PRAGMA journal_mode = WAL");
    database->exec("PRAGMA synchronous = FULL");
    return database;
}

// The name of a file that nobody changes while it is open, as the engine wants it.
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
        Handle database = OpenHandle(file.string(), SQLITE_OPEN_READONLY);
        SetUp(*database);
        Touch(*database);
        return database;
    } catch (const SQLite::Exception& error) {
        // A write-ahead log needs a file beside the database even to be read. Where none can be
        // made nobody can be writing either.
        const int code = PrimaryCode(error);
        const bool noLogFile = code == SQLITE_CANTOPEN || code == SQLITE_READONLY;
        if (!noLogFile || HasUnreadLog(file)) throw;
    }
    Handle database = OpenHandle(ImmutableName(file), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
    SetUp(*database);
    Touch(*database);
    return database;
}

} // namespace

std::unique_ptr<SQLite::Database> OpenDatabaseFile(const fs::path& file, OpenMode mode) {
    const fs::path full = fs::absolute(file);
    const bool make = mode == OpenMode::Create;
    if (make) {
        MakePrivateFile(full);
    } else {
        CheckExists(full);
    }
    try {
        return mode == OpenMode::ReadOnly ? OpenToRead(full) : OpenToWrite(full);
    } catch (const SQLite::Exception& error) {
        std::error_code ignored;
        if (make) fs::remove(full, ignored);
        ThrowCannot(make ? "make" : "open", full, ReasonOf(error, full), PrimaryCode(error));
    }
}

} // namespace platform
