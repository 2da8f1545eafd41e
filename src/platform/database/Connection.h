#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

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

class DatabaseEngine;

/// One open database file, spoken to in the program's SQL dialect. Every failure is a DatabaseError
/// (a DialectError where the statement has a fault), and leaves the data as before the call.
///
/// Statements are kept compiled, so saying the same text again with other parameters is cheap.
class Connection {
  public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Opens an existing database; Create makes the file (private to the user), and fails if it is
    /// there. An open connection is closed first.
    void Open(const std::filesystem::path& file, OpenMode mode = OpenMode::ReadWrite);
    /// Nothing when it isn't open.
    void Close();
    bool IsOpen() const;
    /// True if it is open and every statement that writes will fail.
    bool IsReadOnly() const;
    const std::filesystem::path& File() const;

    /// Runs one statement, with a value for each `?` in it. The number of rows affected (0 for a
    /// select, whose rows are dropped). A value that doesn't convert to what its place asks for is
    /// a DatabaseError too.
    std::int64_t Execute(std::string_view sql, std::span<const Value> parameters = {});
    std::int64_t Execute(std::string_view sql, std::initializer_list<Value> parameters);

    /// The first column of the first row; nothing without a row.
    std::optional<Value> Scalar(std::string_view sql, std::span<const Value> parameters = {});
    std::optional<Value> Scalar(std::string_view sql, std::initializer_list<Value> parameters);

    /// The tables and their fields as the file declares them.
    const dialect::Catalog& Tables();

    /// Runs statements of the engine's own SQL, all or none of them: for the schema alone.
    void RunScript(std::string_view script);

    /// True between the begin and the end of a unit of work.
    bool InUnitOfWork() const;

  private:
    friend class Recordset;
    friend class UnitOfWork;

    /// A DatabaseError when it isn't open.
    DatabaseEngine& Engine() const;

    std::filesystem::path file_;
    std::unique_ptr<DatabaseEngine> engine_;
};

/// What happens between construction and Commit is kept whole or not at all, also when the machine
/// stops: without Commit, destruction takes everything back. One inside another is a part of it
/// that can be taken back by itself. A statement that fails in between is taken back alone and ends
/// nothing; only where the engine had to give up the whole unit (a full disk) does every further
/// statement fail, and Commit too.
class UnitOfWork {
  public:
    explicit UnitOfWork(Connection& connection);
    ~UnitOfWork();
    UnitOfWork(const UnitOfWork&) = delete;
    UnitOfWork& operator=(const UnitOfWork&) = delete;

    /// A DatabaseError if it can't be kept; destruction then takes it back.
    void Commit();

  private:
    Connection& connection_;
    int level_ = 0; // 0 when it has ended
};

} // namespace platform
