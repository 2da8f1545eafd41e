#pragma once

#include "core/Table.h"
#include "shell/RunDigest.h"

namespace shell {

/// The rows of a digest as a table: first the records that were skipped, then the rows that were
/// posted. The first column numbers them from 1. The digest must outlive the table.
class DigestTable : public core::Table {
  public:
    explicit DigestTable(const RunDigest& digest);

    const std::vector<core::TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override;
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override;

    /// Returns the posted row of this number; null for a record that was skipped.
    const DigestRow* PostedRow(std::int32_t number) const;

  private:
    const RunDigest& digest_;
    std::vector<core::TableColumn> columns_;
};

} // namespace shell
