#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

#include "core/Globals.h"
#include "platform/database/Recordset.h"

namespace core {

// The rows of the books. Failures are thrown, while the operations in core/Session.h don't report
// them. Without `books`, the session's connection is used.

using Parameters = std::initializer_list<platform::Value>;

/// Opens the rows of a select (or of a table, by its bare name) to read them.
platform::Recordset Read(std::string_view sql, Parameters parameters = {},
                         platform::Connection& books = App().Connection);
platform::Recordset Read(std::string_view sql, std::span<const platform::Value> parameters,
                         platform::Connection& books = App().Connection);

/// Opens the rows of a select to change them.
platform::Recordset Write(std::string_view sql, Parameters parameters = {},
                          platform::Connection& books = App().Connection);

/// Starts a new row of a table, whose other rows aren't fetched.
platform::Recordset NewRow(std::string_view table, platform::Connection& books = App().Connection);

/// Returns true if a select has a row.
bool Exists(std::string_view sql, Parameters parameters = {},
            platform::Connection& books = App().Connection);

/// Returns the first column of the first row of a select; null if there is no row.
platform::Value ReadValue(std::string_view sql, Parameters parameters = {},
                          platform::Connection& books = App().Connection);

/// Runs a statement that writes and returns the number of rows affected.
std::int64_t Execute(std::string_view sql, Parameters parameters = {},
                     platform::Connection& books = App().Connection);

/// The row of one record, opened to be written: the stored one, or if it was deleted a new one of
/// the same id. Id 0 starts a new row under a new id. `row.Update()` writes it.
struct RowToWrite {
    RowToWrite(std::string_view table, std::string_view idField, std::int32_t id = 0);

    platform::Field operator[](std::string_view field) { return row[field]; }

    std::int32_t id;
    platform::Recordset row;
    bool isNew = false;
};

} // namespace core
