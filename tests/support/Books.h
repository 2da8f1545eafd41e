#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"

namespace support {

// The contents of open books as text, for tests.

/// The fields of the current row, joined by "|"; nulls as `null`.
inline std::string RowText(platform::Recordset& rows, std::string_view null = "null") {
    std::string line;
    for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
        if (i > 0) line += '|';
        line += rows[i].IsNull() ? std::string(null) : rows[i].AsText();
    }
    return line;
}

/// The rows of a select, each as RowText.
inline std::vector<std::string> Rows(platform::Connection& books, std::string_view sql,
                                     std::string_view null = "null") {
    std::vector<std::string> lines;
    platform::Recordset rows;
    rows.Open(books, sql);
    for (; !rows.Eof(); rows.MoveNext())
        lines.push_back(RowText(rows, null));
    return lines;
}

/// The first value of a select; "-" if there is no row.
inline std::string Ask(platform::Connection& books, std::string_view sql,
                       std::string_view null = "null") {
    const auto value = books.Scalar(sql);
    if (!value) return "-";
    return value->IsNull() ? std::string(null) : value->AsText();
}

/// Every row of every table, after the table's name.
inline std::vector<std::string> Dump(platform::Connection& books) {
    std::vector<std::string> lines;
    for (const auto& table : books.Tables().Tables()) {
        for (const std::string& row : Rows(books, table.name))
            lines.push_back(table.name + ": " + row);
    }
    return lines;
}

} // namespace support
