#pragma once

#include <functional>

#include "platform/database/Connection.h"

namespace core {

// The steps of the start that need no window, in the order of their call: InitGlobals,
// LoadPreferences, FindDatabase, OpenBooks, UpdateRecords, CleanTmpFiles.

enum class BooksUse {
    Keep, ///< to read and write, or only to read where writing isn't allowed
    Read, ///< only to read: the file stays as it is, and the daily run does nothing
};

/// Opens the session on the database that was found, and LoadBooks. False when it can't be opened;
/// the program goes on all the same, with empty views.
bool OpenBooks(BooksUse use = BooksUse::Keep);

/// Adds to books what an earlier version of the program didn't make.
using BooksStep = std::function<void(platform::Connection& books)>;
/// Gives LoadBooks this step; an empty one takes it away.
void SetBooksStep(BooksStep step);

/// Reads the settings into memory. Before that it brings books that are not only read up to this
/// version's tables, and gives them the default settings if they have none. Failures are ignored.
void LoadBooks(BooksUse use = BooksUse::Keep);

/// Deletes the temporary files in the program's directory; failures are ignored.
void CleanTmpFiles();

} // namespace core
