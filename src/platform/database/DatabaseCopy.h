#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>

#include "platform/system/DiskFile.h"

namespace SQLite {
class Database;
}

namespace platform {

/// Copies a database, to a file or into memory, while other connections use it: the copy is the
/// database as it was at one moment, made by the engine. Every failure is an Error with the reason.
class DatabaseCopy {
  public:
    /// Fixes the moment of the copy.
    explicit DatabaseCopy(const std::filesystem::path& database);
    ~DatabaseCopy();
    DatabaseCopy(const DatabaseCopy&) = delete;
    DatabaseCopy& operator=(const DatabaseCopy&) = delete;

    /// Returns the length of the copy in bytes.
    std::int64_t Size() const { return size_; }

    using Progress = std::function<void(std::int64_t bytesDone)>;
    /// Writes the copy into `out`, from `offset` on, which is the file's end. `progress` may be
    /// empty; it is called every few megabytes, and what it throws ends the copying.
    void WriteTo(DiskFile& out, std::int64_t offset, const Progress& progress) const;

    /// Makes the copy in memory; `progress` as for WriteTo.
    std::unique_ptr<SQLite::Database> ToMemory(const Progress& progress) const;

  private:
    void CopyPages(SQLite::Database& copy, const Progress& progress) const;

    std::unique_ptr<SQLite::Database> source_;
    std::int64_t pageSize_ = 0;
    std::int64_t size_ = 0;
};

} // namespace platform
