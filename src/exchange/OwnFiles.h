#pragma once

#include <filesystem>

namespace exchange {

/// Throws an Error if `file` is the process's database, or a file of the database in its folder:
/// writing to it would destroy the books.
void RefuseOwnFile(const std::filesystem::path& file);

} // namespace exchange
