#pragma once

#include "vestrelctl/Command.h"

namespace vestrelctl {

/// Whether a command only reads the books. Books that can't be written to open for reading.
enum class Purpose { Read, Write };

/// Finds the database that the options name and opens the session on it. Throws an Error that says
/// what is wrong with it: missing, too old, locked, damaged, or only readable when the command
/// writes.
void OpenDatabase(const Options& options, Purpose purpose);

/// Opens the books as the program does at its start, with their settings. A command that writes
/// first adds what books of an earlier version lack, and the settings of a new database. Throws an
/// Error as OpenDatabase does.
void OpenBooks(const Options& options, Purpose purpose);

} // namespace vestrelctl
