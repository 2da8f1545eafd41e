#pragma once

#include "core/Table.h"
#include "platform/database/Recordset.h"

namespace core {

/// The rows of a row set, with the formats of its fields' types. Without an open row set the table
/// is empty and has no columns.
class RowsetTable : public Table {
  public:
    explicit RowsetTable(platform::Recordset rows);

    const std::vector<TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override { return rowCount_; }
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override;

  private:
    // Reading a row makes it the current one, which is all that reading changes.
    mutable platform::Recordset rows_;
    std::vector<TableColumn> columns_;
    std::int64_t rowCount_ = 0;
};

} // namespace core
