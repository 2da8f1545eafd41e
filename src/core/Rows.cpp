#include "core/Rows.h"

#include <fmt/core.h>

#include "core/Session.h"

namespace core {

using platform::CursorMode;
using platform::Recordset;

Recordset Read(std::string_view sql, Parameters parameters, platform::Connection& books) {
    return Read(sql, std::span(parameters.begin(), parameters.size()), books);
}

Recordset Read(std::string_view sql, std::span<const platform::Value> parameters,
               platform::Connection& books) {
    Recordset rows;
    rows.Open(books, sql, CursorMode::ReadOnly, parameters);
    return rows;
}

Recordset Write(std::string_view sql, Parameters parameters, platform::Connection& books) {
    Recordset rows;
    rows.Open(books, sql, CursorMode::Updatable, parameters);
    return rows;
}

Recordset NewRow(std::string_view table, platform::Connection& books) {
    Recordset rows;
    rows.Open(books, table, CursorMode::AppendOnly);
    rows.AddNew();
    return rows;
}

bool Exists(std::string_view sql, Parameters parameters, platform::Connection& books) {
    return books.Scalar(sql, parameters).has_value();
}

platform::Value ReadValue(std::string_view sql, Parameters parameters,
                          platform::Connection& books) {
    return books.Scalar(sql, parameters).value_or(platform::Value());
}

std::int64_t Execute(std::string_view sql, Parameters parameters, platform::Connection& books) {
    return books.Execute(sql, parameters);
}

RowToWrite::RowToWrite(std::string_view table, std::string_view idField, std::int32_t recordId)
    : id(recordId == 0 ? NextId() : recordId) {
    if (recordId == 0) {
        row = NewRow(table);
        isNew = true;
    } else {
        row = Write(fmt::format("SELECT * FROM {} WHERE {} = ?", table, idField), {id});
        isNew = row.Eof();
        if (isNew) row.AddNew();
    }
    if (isNew) row[idField].Set(id);
}

} // namespace core
