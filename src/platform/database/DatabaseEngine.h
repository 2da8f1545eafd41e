#pragma once

#include <SQLiteCpp/Database.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "platform/database/Connection.h"
#include "platform/database/StatementCache.h"

namespace platform {

class PendingRows;

/// The engine's side of an open connection.
class DatabaseEngine {
  public:
    DatabaseEngine(const std::filesystem::path& file, OpenMode mode);
    ~DatabaseEngine();
    DatabaseEngine(const DatabaseEngine&) = delete;
    DatabaseEngine& operator=(const DatabaseEngine&) = delete;

    sqlite3* Handle() const { return database_->getHandle(); }
    bool IsReadOnly() const;
    const dialect::Catalog& Tables() const { return catalog_; }

    /// Returns the prepared form of a statement of the dialect; a table's bare name means its rows.
    CachedStatement& Prepare(std::string_view sql);
    /// Returns the prepared form of a statement of the engine's SQL that is known by a key of its
    /// own.
    template <typename MakeSql>
    CachedStatement& PrepareOwn(std::string_view key, MakeSql makeSql);

    /// Binds a value for each `?` of the plan; the values must stay until the statement is reset.
    static void Bind(CachedStatement& statement, std::span<const Value> parameters);
    /// Runs a statement to its end. Returns the number of rows affected, 0 for a select.
    std::int64_t Run(CachedStatement& statement);
    /// Returns the number of the row that was inserted last.
    std::int64_t LastRowNumber() const { return database_->getLastInsertRowid(); }
    /// Throws DatabaseError inside a unit of work that the engine has given up: later statements
    /// would be written outside it.
    void CheckUnit() const;

    void RunScript(std::string_view script);

    /// Adds rows that are still to be read. Until they are removed, they are read before anything
    /// is written.
    void AddPending(PendingRows& rows) { pending_.push_back(&rows); }
    void RemovePending(const PendingRows& rows) noexcept { std::erase(pending_, &rows); }

    // Begins a unit of work, which may be inside another, and returns its level, counted from 1.
    int Begin();
    void Commit(int level);
    /// Rolls back the unit of this level with all inside it; does nothing if it has ended.
    void RollBack(int level) noexcept;
    int UnitLevel() const { return level_; }

  private:
    void ReadCatalog();
    void ReadPending();
    void Command(const std::string& sql);

    std::unique_ptr<SQLite::Database> database_;
    dialect::Catalog catalog_;
    StatementCache statements_;
    std::vector<PendingRows*> pending_;
    std::uint64_t lastPlan_ = 0;
    int level_ = 0;
    bool schemaChangedInUnit_ = false;
};

template <typename MakeSql>
CachedStatement& DatabaseEngine::PrepareOwn(std::string_view key, MakeSql makeSql) {
    if (CachedStatement* found = statements_.Find(key)) return *found;
    return statements_.Add(key, {nullptr, PreparedStatement(Handle(), makeSql())});
}

} // namespace platform
