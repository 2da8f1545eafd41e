#pragma once

struct sqlite3;

namespace platform::dialect {

/// Gives an open connection of the engine the functions and the collation that compiled statements
/// call. They live on the connection alone: the database file knows nothing of them.
void RegisterRuntimeFunctions(sqlite3* connection);

} // namespace platform::dialect
