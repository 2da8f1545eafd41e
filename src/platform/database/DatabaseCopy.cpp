#include "platform/database/DatabaseCopy.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include "platform/database/DatabaseFile.h"
#include "platform/database/EngineFailure.h"
#include "platform/database/OffsetFile.h"
#include "platform/database/PreparedStatement.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

constexpr std::int64_t kBytesAtATime = 8 << 20;

std::int64_t Ask(SQLite::Database& database, std::string_view sql) {
    PreparedStatement question(database.getHandle(), sql);
    return question.Step() ? question.Column(0).integer : 0;
}

struct EndBackup {
    void operator()(sqlite3_backup* backup) const { sqlite3_backup_finish(backup); }
};

} // namespace

DatabaseCopy::DatabaseCopy(const std::filesystem::path& database)
    : source_(OpenDatabaseFile(database, OpenMode::ReadOnly)) {
    Ask(*source_, "PRAGMA mmap_size = 1073741824"); // saves copying each page once more
    // The first read after BEGIN fixes the view of the database, and so its size.
    Ask(*source_, "BEGIN");
    pageSize_ = Ask(*source_, "PRAGMA page_size");
    size_ = pageSize_ * Ask(*source_, "PRAGMA page_count");
}

DatabaseCopy::~DatabaseCopy() = default;

void DatabaseCopy::CopyPages(SQLite::Database& copy, const Progress& progress) const {
    copy.exec("PRAGMA page_size = " + std::to_string(pageSize_));
    copy.exec("PRAGMA journal_mode = OFF");
    copy.exec("PRAGMA synchronous = OFF");
    const std::unique_ptr<sqlite3_backup, EndBackup> backup(
        sqlite3_backup_init(copy.getHandle(), "main", source_->getHandle(), "main"));
    if (!backup) ThrowEngineError(copy.getHandle());
    const int pages = static_cast<int>(kBytesAtATime / pageSize_);
    int result = SQLITE_OK;
    while ((result = sqlite3_backup_step(backup.get(), pages)) == SQLITE_OK) {
        if (progress) progress(size_ - pageSize_ * sqlite3_backup_remaining(backup.get()));
    }
    if (result != SQLITE_DONE) ThrowEngineError(result);
}

void DatabaseCopy::WriteTo(DiskFile& out, std::int64_t offset, const Progress& progress) const {
    OffsetFile place(out, offset);
    try {
        SQLite::Database copy("copy", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, 0,
                              place.Name());
        copy.exec("PRAGMA locking_mode = EXCLUSIVE");
        CopyPages(copy, progress);
    } catch (const SQLite::Exception& error) {
        throw DatabaseError(error.what(), error.getErrorCode() & 0xFF);
    } catch (const DatabaseError&) {
        place.Finish(); // the reason is there, if it was the writing
        throw;
    }
    place.Finish();
    if (progress) progress(size_);
}

std::unique_ptr<SQLite::Database> DatabaseCopy::ToMemory(const Progress& progress) const {
    try {
        auto copy = std::make_unique<SQLite::Database>(
            ":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLITE_OPEN_NOMUTEX);
        CopyPages(*copy, progress);
        // The copy is rolled back like any database.
        copy->exec("PRAGMA journal_mode = MEMORY");
        copy->exec("PRAGMA temp_store = MEMORY");
        return copy;
    } catch (const SQLite::Exception& error) {
        throw DatabaseError(error.what(), error.getErrorCode() & 0xFF);
    }
}

} // namespace platform
