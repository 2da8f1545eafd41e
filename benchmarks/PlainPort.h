#pragma once

#include <filesystem>

namespace bench {

// The yardsticks of the exchange of data: plain C with the engine's own calls, as one would write
// it for this one task.

/// Writes the table Transactions as text, as the program does; returns the rows.
double PlainExport(const std::filesystem::path& database, const std::filesystem::path& file);

/// Checks such a file, then reads it again and adds its rows; returns the rows.
double PlainImport(const std::filesystem::path& database, const std::filesystem::path& file);

/// Copies a file and waits for the disk; returns the bytes.
double PlainCopy(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace bench
