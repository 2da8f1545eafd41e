#pragma once

#include <filesystem>

#include "platform/values/Date.h"

namespace core {

// Settings of the books outside the table Configuration. Books that don't have one, and books of
// earlier versions, give the unset value. Writing throws on failure.

/// Returns the first day that these books keep; unset if they don't say.
platform::Date BooksKeptSince();
/// The unset day deletes the setting.
void SetBooksKeptSince(platform::Date day);

/// Whether these books were made as a sample in the folder where they are. A copy elsewhere is
/// nobody's sample.
bool IsSample();
/// Marks the books as the sample of this folder.
void MarkAsSample(const std::filesystem::path& folder);

} // namespace core
