#pragma once

#include <filesystem>

namespace exchange {

/// What the database is copied before.
enum class CopyReason { Import, Upgrade, Removal };

/// Keeps a copy of the process's database beside it, as it is now, under the first free name of
/// "Vestrel before import 1.mdb", "... 2.mdb" and so on (or "before upgrade", "before removal").
/// Only the last five of a reason are kept. Returns where the copy is; an Error if it can't be
/// made.
std::filesystem::path KeepCopy(CopyReason reason);
/// The same of any database file.
std::filesystem::path KeepCopyOf(const std::filesystem::path& database, CopyReason reason);

} // namespace exchange
