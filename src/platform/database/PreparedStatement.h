#pragma once

#include <string_view>
#include <utility>

#include "platform/database/Cell.h"

struct sqlite3;
struct sqlite3_stmt;

namespace platform {

/// One statement of the engine's SQL. It calls the engine directly, because millions of rows are
/// read through it, and each column of the wrapper has a counted pointer and a check.
class PreparedStatement {
  public:
    /// Throws DatabaseError if the engine doesn't accept the statement.
    PreparedStatement(sqlite3* database, std::string_view sql);
    ~PreparedStatement();
    PreparedStatement(PreparedStatement&& other) noexcept
        : statement_(std::exchange(other.statement_, nullptr)) {}
    PreparedStatement& operator=(PreparedStatement&&) = delete;
    PreparedStatement(const PreparedStatement&) = delete;
    PreparedStatement& operator=(const PreparedStatement&) = delete;

    enum class TextLife {
        UntilReset, ///< the caller keeps the text until the statement is reset
        Passing,    ///< the text is copied
    };
    /// Binds the parameter at `index`, counted from 1.
    void Bind(int index, const Cell& cell, TextLife life);

    /// Returns true if there is a row. Throws DatabaseError on failure.
    bool Step();
    void Reset();

    int ColumnCount() const;
    /// Returns a value of the row; its bytes stay until the next step.
    Cell Column(int index) const;

  private:
    sqlite3_stmt* statement_ = nullptr;
};

/// Leaves a statement ready for its next run, however this one ends.
class StatementRun {
  public:
    explicit StatementRun(PreparedStatement& statement) : statement_(statement) {}
    ~StatementRun() { statement_.Reset(); }
    StatementRun(const StatementRun&) = delete;
    StatementRun& operator=(const StatementRun&) = delete;

  private:
    PreparedStatement& statement_;
};

} // namespace platform
