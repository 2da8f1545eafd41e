#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "core/RecordKinds.h"
#include "core/Table.h"
#include "shell/RunDigest.h"
#include "shell/TakenRows.h"

namespace shell {

/// A record to be opened.
struct RecordPlace {
    core::RecordKind kind = core::kNone;
    std::int32_t id = 0;

    friend bool operator==(const RecordPlace&, const RecordPlace&) = default;
};

/// The rows of a digest as a table: first the records that were skipped, then the rows that were
/// posted, each with its reason. The first column numbers them from 1. The digest must outlive the
/// table.
class DigestTable : public core::Table {
  public:
    /// `takenBack` are the rows that are shown as taken back; null for none.
    explicit DigestTable(const RunDigest& digest,
                         std::shared_ptr<const TakenRows> takenBack = nullptr);

    const std::vector<core::TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override;
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override;

    /// Returns the posted row of this number; null for a record that was skipped.
    const DigestRow* PostedRow(std::int32_t number) const;
    /// Returns why the row of this number was posted, or why the record wasn't updated.
    std::string ReasonOf(std::int32_t number) const;
    /// Returns the record that the row of this number is about, if there is one.
    std::optional<RecordPlace> RecordOf(std::int32_t number) const;
    /// Returns the day on which a row was taken back; unset if it wasn't.
    platform::Date TakenOn(const DigestRow& row) const;

  private:
    const DigestFault* FaultOf(std::int32_t number) const;
    platform::Value PostedValue(const DigestRow& row, std::size_t column) const;

    const RunDigest& digest_;
    std::shared_ptr<const TakenRows> takenBack_;
    std::vector<core::TableColumn> columns_;
};

} // namespace shell
