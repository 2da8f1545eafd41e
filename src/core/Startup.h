#pragma once

#include <functional>

#include "platform/database/Connection.h"

namespace core {

// The steps of the start that need no window, in the order of their call: InitGlobals,
// LoadPreferences, FindDatabase, OpenBooks, UpdateRecords, CleanTmpFiles.

enum class BooksUse {
    Keep, ///< to read and write, or only to read if writing isn't allowed
    Read, ///< only to read: the file stays as it is, and the daily run does nothing
};

/// Opens the session on the database that was found, and calls LoadBooks. Returns false if it can't
/// be opened; the program then continues with empty views.
bool OpenBooks(BooksUse use = BooksUse::Keep);

/// Adds to books what earlier versions of the program didn't make.
using BooksStep = std::function<void(platform::Connection& books)>;
/// Sets the step that LoadBooks runs; an empty one removes it.
void SetBooksStep(BooksStep step);

/// Reads the settings into memory. Before that, unless the books are only read, it adds the tables
/// of this version to them, and the default settings if they have none. Failures are ignored.
void LoadBooks(BooksUse use = BooksUse::Keep);

/// Deletes the temporary files in the program's directory; failures are ignored.
void CleanTmpFiles();

} // namespace core
