#pragma once

#include <filesystem>

namespace exchange {

/// Throws an Error if `file` is the process's database, or another file that belongs to it in its
/// folder: a file written by that name would replace the books.
void RefuseOwnFile(const std::filesystem::path& file);

} // namespace exchange
