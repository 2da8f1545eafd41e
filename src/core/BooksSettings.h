#pragma once

#include <filesystem>

#include "platform/values/Date.h"

namespace core {

// Settings of the books outside the table Configuration. Books that don't have one, and books of
// earlier versions, give the unset value. Writing throws on failure.

/// Returns the first day that these books keep; unset if no such day is stored.
platform::Date BooksKeptSince();
/// Stores that day; the unset day deletes the setting.
void SetBooksKeptSince(platform::Date day);

/// Returns whether these books were made as a sample in the folder that they are in. A copy in
/// another folder is not a sample.
bool IsSample();
/// Marks the books as the sample of this folder.
void MarkAsSample(const std::filesystem::path& folder);

} // namespace core
