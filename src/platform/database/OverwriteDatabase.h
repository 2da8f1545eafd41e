#pragma once

#include <filesystem>

namespace platform {

/// Replaces all that a database holds by what another one holds, in one write: a program that has
/// it open sees the old contents or the new ones. Throws DatabaseError on failure, also if another
/// program goes on writing for longer than we wait; the database is then as it was.
void OverwriteDatabase(const std::filesystem::path& database, const std::filesystem::path& by);

} // namespace platform
