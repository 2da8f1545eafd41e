#pragma once

#include <filesystem>
#include <functional>

#include "platform/database/Connection.h"

namespace support {

/// Fills a new, empty database with tables.
using MakeTables = std::function<void(platform::Connection&)>;

/// Registers a test for each block of the statement files in `folder`; its name is the file's and
/// the block's number and name. Every file has a database of its own, made by `makeTables`, the
/// set-up blocks of `seed` (a file of the folder, which may be left empty) and its own; each block
/// leaves it as it was. To be called before the tests run.
void RegisterStatementTests(const std::filesystem::path& folder, const std::filesystem::path& seed,
                            const MakeTables& makeTables);

} // namespace support
