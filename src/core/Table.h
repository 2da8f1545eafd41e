#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/GridFormat.h"
#include "platform/values/Value.h"

namespace core {

struct TableColumn {
    std::string caption{};
    platform::FieldType type = platform::FieldType::Text;
    ColumnFormat format{};
};

/// Returns a column with the format of its type and caption.
inline TableColumn MakeColumn(std::string_view caption, platform::FieldType type) {
    return {std::string(caption), type, FormatOf(type, caption)};
}

/// Rows to show, print or export: the rows of a row set, a schedule, the rows that a run has
/// posted. Values are calculated on demand, so a table of a million rows costs only as much as is
/// shown of it.
class Table {
  public:
    Table() = default;
    virtual ~Table() = default;
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    virtual const std::vector<TableColumn>& Columns() const = 0;
    virtual std::int64_t RowCount() const = 0;
    /// Returns a cell; both numbers count from 0 and must be inside the table.
    virtual platform::Value ValueAt(std::int64_t row, std::size_t column) const = 0;
};

} // namespace core
