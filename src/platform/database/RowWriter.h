#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Cell.h"
#include "platform/database/Connection.h"

namespace platform {

struct CachedStatement;

/// Adds rows to one table, fast: for a routine that adds many of them. Fields that aren't named
/// take the table's defaults. `connection` must outlive the writer.
class RowWriter {
  public:
    /// Throws a FieldError for a table or field that isn't there.
    RowWriter(Connection& connection, std::string_view table, std::span<const std::string> fields);
    ~RowWriter();
    RowWriter(const RowWriter&) = delete;
    RowWriter& operator=(const RowWriter&) = delete;

    /// Returns the types of the fields, in the order they were named.
    const std::vector<FieldType>& Types() const { return types_; }

    /// Adds a row, with a cell for each field as its type is stored. Throws a DatabaseError on
    /// failure; no row is added then.
    void Add(std::span<const Cell> cells);

  private:
    Connection& connection_;
    std::vector<FieldType> types_;
    std::unique_ptr<CachedStatement> insert_;
};

} // namespace platform
