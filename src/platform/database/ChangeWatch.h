#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>

namespace SQLite {
class Database;
}

namespace platform {

/// Notices that a database was written to, by whichever connection and program, without reading it.
/// It keeps the file open: destroy it before the last connection that writes closes.
class ChangeWatch {
  public:
    /// Throws DatabaseError if the database can't be opened.
    explicit ChangeWatch(const std::filesystem::path& database);
    ~ChangeWatch();
    ChangeWatch(const ChangeWatch&) = delete;
    ChangeWatch& operator=(const ChangeWatch&) = delete;

    /// Returns a number that changes with each commit. Throws DatabaseError on failure.
    std::int64_t Version() const;

  private:
    std::unique_ptr<SQLite::Database> database_;
};

} // namespace platform
