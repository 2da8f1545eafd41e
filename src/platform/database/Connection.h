#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Catalog.h"
#include "platform/values/Errors.h"
#include "platform/values/Value.h"

namespace platform {

enum class OpenMode {
    ReadWrite,
    ReadOnly,
    ReadWriteIfAllowed, ///< only to read if the file or its folder can't be written to
    Create,
};

/// How a unit of work ended: its writes are in the file, or none of them is.
enum class UnitEnd { Kept, RolledBack };

class DatabaseEngine;

/// One open database file, used through the program's SQL dialect. A failure throws DatabaseError
/// (DialectError if the statement has a fault), and leaves the data as before the call.
///
/// Compiled statements are kept, so that running the same text with other parameters is cheap.
class Connection {
  public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Opens an existing database; with OpenMode::Create, makes the file (private to the user) and
    /// fails if it already exists. An open connection is closed first.
    void Open(const std::filesystem::path& file, OpenMode mode = OpenMode::ReadWrite);
    /// Does nothing if it isn't open.
    void Close();
    bool IsOpen() const;
    /// Returns true if the connection is open, and every statement that writes will fail.
    bool IsReadOnly() const;
    const std::filesystem::path& File() const;

    /// Runs one statement, with a value for each `?` in it. Returns the number of rows affected (0
    /// for a select, whose rows are dropped). Throws DatabaseError also if a value can't be
    /// converted to the type that its place needs.
    std::int64_t Execute(std::string_view sql, std::span<const Value> parameters = {});
    std::int64_t Execute(std::string_view sql, std::initializer_list<Value> parameters);

    /// Returns the first column of the first row of a select; empty if there is no row.
    std::optional<Value> Scalar(std::string_view sql, std::span<const Value> parameters = {});
    std::optional<Value> Scalar(std::string_view sql, std::initializer_list<Value> parameters);

    /// Returns the tables and their fields as the file declares them.
    const dialect::Catalog& Tables();

    /// Runs statements of the engine's own SQL, all or none of them: only for the schema.
    void RunScript(std::string_view script);

    /// Returns whether a unit of work is open.
    bool InUnitOfWork() const;

    /// Calls `work` once, after the unit of work that is open now has ended as a whole, in the
    /// order given. Throws DatabaseError if none is open.
    void AfterUnitOfWork(std::function<void(UnitEnd)> work);

  private:
    friend class Recordset;
    friend class RowWriter;
    friend class UnitOfWork;

    /// Throws DatabaseError if it isn't open.
    DatabaseEngine& Engine() const;
    void UnitEnded(UnitEnd end);

    std::filesystem::path file_;
    std::vector<std::function<void(UnitEnd)>> afterUnit_;
    std::unique_ptr<DatabaseEngine> engine_;
};

/// Statements that are committed together or, without Commit, rolled back, also if the machine
/// stops. A unit counts as a write from its start: what is read in it stays true until it ends. A
/// unit inside another can be rolled back by itself, and so is a statement that fails. Only if the
/// engine had to give up the whole unit (a full disk), every further statement fails, and Commit
/// too. The constructor throws DatabaseError if another program goes on writing for longer than we
/// wait.
class UnitOfWork {
  public:
    explicit UnitOfWork(Connection& connection);
    ~UnitOfWork();
    UnitOfWork(const UnitOfWork&) = delete;
    UnitOfWork& operator=(const UnitOfWork&) = delete;

    /// Throws DatabaseError if it can't be committed; destruction then rolls it back.
    void Commit();

  private:
    Connection& connection_;
    int level_ = 0; // 0 when it has ended
};

} // namespace platform
