#include "core/RowsetTable.h"

#include <utility>

namespace core {

RowsetTable::RowsetTable(platform::Recordset rows) : rows_(std::move(rows)) {
    if (!rows_.IsOpen()) return;
    rowCount_ = rows_.RecordCount();
    for (std::size_t i = 0; i < rows_.FieldCount(); ++i) {
        const platform::Field field = rows_[i];
        columns_.push_back(MakeColumn(field.Name(), field.Type()));
    }
}

platform::Value RowsetTable::ValueAt(std::int64_t row, std::size_t column) const {
    rows_.SetAbsolutePosition(row + 1);
    return rows_[column].Value();
}

} // namespace core
