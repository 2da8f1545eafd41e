#pragma once

#include <filesystem>

namespace bench {

/// A portfolio of some years, made row by row and not by the program's own run.
struct WindowBooks {
    int leases = 0;
    int mortgages = 0;
    int transactions = 0;
};

/// A new database in `folder` with these rows, whose dates lie in the ten years before 2025; one
/// lease and one mortgage of ten is late.
void MakeWindowBooks(const std::filesystem::path& folder, const WindowBooks& books);

/// Gives the process a registry of its own in memory, no display, and 01/15/2025 for today, and
/// opens the session on the database in `folder`.
void OpenWindowBooks(const std::filesystem::path& folder);

} // namespace bench
