#pragma once

struct sqlite3;

namespace platform::dialect {

/// Gives an open connection of the engine the functions and the collation that compiled statements
/// call. They exist only on the connection; the database file doesn't know them.
void RegisterRuntimeFunctions(sqlite3* connection);

} // namespace platform::dialect
