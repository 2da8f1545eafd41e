#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "platform/database/PreparedStatement.h"
#include "platform/database/RowBuffer.h"
#include "platform/database/StatementCache.h"

namespace platform {

class DatabaseEngine;

/// The rows of a select that haven't been read yet. All of them are as they were at one moment: the
/// rest is read before the engine writes anything.
class PendingRows {
  public:
    /// Starts the select, which puts its rows into `rows`, and counts them.
    PendingRows(DatabaseEngine& engine, const std::shared_ptr<const StatementPlan>& plan,
                std::vector<Value> parameters, RowBuffer& rows);
    ~PendingRows();
    PendingRows(const PendingRows&) = delete;
    PendingRows& operator=(const PendingRows&) = delete;

    /// Returns how many rows there are, read or not.
    std::size_t Total() const { return total_; }
    /// Reads on until `count` rows have been read, or all of them.
    void ReadTo(std::size_t count);

  private:
    void End();

    DatabaseEngine* engine_; // null when all rows are read
    std::vector<Value> parameters_;
    std::optional<CachedStatement> select_; // as long as it has rows: it keeps the engine open
    RowBuffer& rows_;
    int width_;
    std::size_t total_ = 0;
};

} // namespace platform
