#pragma once

#include <filesystem>

namespace exchange {

/// The change before which a copy of the database is kept.
enum class CopyReason { Import, Removal };

/// Saves a copy of the process's database beside it, under the first free name of "Vestrel before
/// import 1.mdb", "... 2.mdb" and so on (or "before removal"). Only the last five copies of a
/// reason are kept. Returns the path of the copy. Throws an Error if it can't be written.
std::filesystem::path KeepCopy(CopyReason reason);
/// Does the same for any database file.
std::filesystem::path KeepCopyOf(const std::filesystem::path& database, CopyReason reason);

} // namespace exchange
