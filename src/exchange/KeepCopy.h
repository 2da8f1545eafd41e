#pragma once

#include <filesystem>

namespace exchange {

/// The change that a copy of the database is kept before.
enum class CopyReason { Import, Removal };

/// Keeps a copy of the process's database beside it, as it is now, under the first free name of
/// "Vestrel before import 1.mdb", "... 2.mdb" and so on (or "before removal"). Only the last five
/// of a reason are kept. Returns the path of the copy. Throws an Error if it can't be made.
std::filesystem::path KeepCopy(CopyReason reason);
/// The same of any database file.
std::filesystem::path KeepCopyOf(const std::filesystem::path& database, CopyReason reason);

} // namespace exchange
