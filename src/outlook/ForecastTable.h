#pragma once

#include "core/Table.h"
#include "outlook/Forecast.h"

namespace outlook {

/// The rows of a forecast as a table. The first column numbers them from 1, the next two hold kind
/// and id of the record. The forecast must outlive the table.
class ForecastTable : public core::Table {
  public:
    /// The columns before the first that a user reads.
    static constexpr int kFirstShown = 3;

    explicit ForecastTable(const Forecast& forecast);

    const std::vector<core::TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override { return std::ssize(forecast_.rows); }
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override;

  private:
    const Forecast& forecast_;
    std::vector<core::TableColumn> columns_;
};

} // namespace outlook
