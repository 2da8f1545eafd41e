#pragma once

struct sqlite3;

namespace platform::dialect {

/// Adds the functions and the collation that compiled statements call to an open connection of the
/// engine. They belong to the connection and aren't stored in the database file.
void RegisterRuntimeFunctions(sqlite3* connection);

} // namespace platform::dialect
