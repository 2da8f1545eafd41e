#pragma once

namespace core {

// The steps of the start that need no window, in the order of their call: InitGlobals,
// LoadPreferences, FindDatabase, OpenBooks, UpdateRecords, CleanTmpFiles.

enum class BooksUse {
    Keep, ///< to read and write, or only to read where writing isn't allowed
    Read, ///< only to read; the daily run then does nothing
};

/// Opens the session on the database that was found, and LoadBooks. False when it can't be opened;
/// the program goes on all the same, with empty views.
bool OpenBooks(BooksUse use = BooksUse::Keep);

/// Gives books that have no settings the default ones, and reads the settings into memory. Failures
/// are ignored.
void LoadBooks();

/// Deletes the temporary files in the program's directory; failures are ignored.
void CleanTmpFiles();

} // namespace core
