#include "platform/database/EngineFailure.h"

#include <sqlite3.h>

#include <cerrno>
#include <system_error>

#include "platform/values/Errors.h"

namespace platform {

namespace {

bool IsFullDisk(int code, int systemError) {
    // The engine reports a full disk only if it appends to a file; otherwise it reports an I/O
    // error.
    const int primary = code & 0xFF;
    if (primary == SQLITE_FULL) return true;
    return primary == SQLITE_IOERR && (systemError == ENOSPC || systemError == EDQUOT);
}

} // namespace

std::string DescribeEngineFailure(int code, int systemError, const std::string& text) {
    if (IsFullDisk(code, systemError)) return "The disk is full.";
    switch (code & 0xFF) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "Another program is writing to these books. Try again when it has finished.";
        case SQLITE_READONLY:
            return "These books can only be read.";
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return "The database file is damaged: " + text + ".";
        case SQLITE_IOERR:
            return "The database file can't be read or written: " +
                   (systemError == 0 ? text : std::generic_category().message(systemError)) + ".";
        default:
            return text;
    }
}

void ThrowEngineError(sqlite3* database) {
    const int code = sqlite3_extended_errcode(database);
    throw DatabaseError(
        DescribeEngineFailure(code, sqlite3_system_errno(database), sqlite3_errmsg(database)),
        code & 0xFF);
}

void ThrowEngineError(int result) {
    throw DatabaseError(DescribeEngineFailure(result, 0, sqlite3_errstr(result)), result & 0xFF);
}

} // namespace platform
