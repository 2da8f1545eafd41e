#pragma once

#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/Table.h"

namespace core {

/// Rows in memory as a table: each column is given by its caption, its type, and the member or
/// function of the row that it shows.
template <class Row>
class RowTable : public Table {
  public:
    class Column {
      public:
        template <class Get>
        Column(std::string_view caption, platform::FieldType type, Get get)
            : shown_(MakeColumn(caption, type)),
              read_([get](const Row& row) { return AsValue(std::invoke(get, row)); }) {}

      private:
        friend class RowTable;

        template <class T>
        static platform::Value AsValue(const T& value) {
            if constexpr (std::is_enum_v<T>) {
                return static_cast<std::underlying_type_t<T>>(value);
            } else {
                return value;
            }
        }

        TableColumn shown_;
        std::function<platform::Value(const Row&)> read_;
    };

    RowTable(std::vector<Row> rows, const std::vector<Column>& columns) : rows_(std::move(rows)) {
        for (const Column& column : columns) {
            columns_.push_back(column.shown_);
            read_.push_back(column.read_);
        }
    }

    const std::vector<TableColumn>& Columns() const override { return columns_; }
    std::int64_t RowCount() const override { return std::ssize(rows_); }
    platform::Value ValueAt(std::int64_t row, std::size_t column) const override {
        return read_[column](rows_[static_cast<std::size_t>(row)]);
    }

  private:
    std::vector<Row> rows_;
    std::vector<TableColumn> columns_;
    std::vector<std::function<platform::Value(const Row&)>> read_;
};

} // namespace core
