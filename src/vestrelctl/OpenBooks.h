#pragma once

#include "vestrelctl/Command.h"

namespace vestrelctl {

/// Finds the database that the options name and opens the session on it. An Error that says what is
/// wrong with it: missing, too old, locked, no database.
void OpenDatabase(const Options& options);

/// The same as the program does at its start: with the settings of the books, which a new database
/// receives now.
void OpenBooks(const Options& options);

} // namespace vestrelctl
