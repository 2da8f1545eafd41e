#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "platform/database/Cell.h"
#include "platform/database/dialect/Catalog.h"

namespace platform {

class DatabaseEngine;

/// Reads whole tables of a database, all of them as they were when this was opened, whatever other
/// connections write in the meantime. Every failure is a DatabaseError.
class DatabaseReader {
  public:
    explicit DatabaseReader(const std::filesystem::path& database);
    ~DatabaseReader();
    DatabaseReader(const DatabaseReader&) = delete;
    DatabaseReader& operator=(const DatabaseReader&) = delete;

    const dialect::Catalog& Tables() const;
    std::int64_t CountRows(std::string_view table);

    using Row = std::span<const Cell>;
    /// Calls `work` with each row of a table, in the order of the table, with the cells in the
    /// order of its fields. A row's bytes stay only until the call returns: the memory needed
    /// doesn't grow with the table.
    void ReadRows(std::string_view table, const std::function<void(Row row)>& work);

  private:
    std::unique_ptr<DatabaseEngine> engine_;
};

} // namespace platform
