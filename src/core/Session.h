#pragma once

#include <cstdint>
#include <initializer_list>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Connection.h"
#include "platform/database/Recordset.h"

namespace core {

// The database session. Operations here don't report failures: they return false, -1, 0 or leave
// their output unchanged, unless they say otherwise. Callers that need the reason use core/Rows.h.

/// Opens `path`, or the process's database if it is empty (then `path` is set to its file); opens
/// it read-only if the file can't be written to. The reason for a failure is kept in
/// App().OpenFault.
bool OpenDatabase(platform::Connection& connection, std::string& path);
bool CloseDatabase(platform::Connection& connection);

/// Runs one statement on the process's connection, with a value for each `?` in it.
bool ExecuteSql(std::string_view sql, std::initializer_list<platform::Value> parameters = {});

/// Opens `rows` on a select (or on a table's bare name) and returns the number of rows; -1 on any
/// failure.
std::int64_t OpenRecordset(platform::Recordset& rows, std::string_view sql,
                           platform::CursorMode mode,
                           std::initializer_list<platform::Value> parameters = {});
/// Returns a count for a routine whose result has 16 bits: -1 if there are more than 32767 rows.
std::int16_t CountIn16Bits(std::int64_t count);
void CloseRecordset(platform::Recordset& rows);

/// Returns the number of rows of a table; 0 on failure.
std::int32_t CountTable(std::string_view table);
/// Returns the number of rows that meet `where` (without the word WHERE, may be empty); 0 on
/// failure.
std::int32_t CountRecords(std::string_view table, std::string_view where);

/// Reads the column `Result` of the first row into `value`, which stays unchanged if there is no
/// row, for a null and on failure.
void GetScalar(std::string_view sql, platform::Value& value);
/// Returns the first column of the first row; nothing if there is no row, for a null and on
/// failure.
std::optional<platform::Value> LookUp(std::string_view sql,
                                      std::initializer_list<platform::Value> parameters);

bool TableExists(std::string_view table);
/// Returns whether the table has every one of these fields.
bool FieldsExist(std::string_view table, std::span<const std::string> names);

struct TableTotals {
    std::int32_t tables = 0;
    std::int32_t fields = 0;
    std::int32_t records = 0;
    std::vector<std::string> names;
};
/// Returns the tables of an open database, and the sums of their fields and rows.
TableTotals ListTables(platform::Connection& connection);

/// Returns a new record identifier, unique in the whole database even while another program takes
/// new ones. Throws on failure.
std::int32_t NextId();
/// Returns the first of `count` consecutive new identifiers, for a routine that writes many rows at
/// once.
std::int32_t NextIds(std::int32_t count);

/// Appends a condition to `sql`: with WHERE, or with AND if that word is in it already.
void AddWhere(std::string& sql, std::string_view condition);

/// Gives every null of the current row the empty value of its type (0, False or an empty text;
/// 16-bit integers and dates stay null). Returns true if there was a null. Each repair is written
/// to `diagFile` unless that is null. The caller writes the row.
bool RepairNulls(platform::Recordset& rows, std::ostream* diagFile);

} // namespace core
