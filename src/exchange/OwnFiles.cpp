#include "exchange/OwnFiles.h"

#include <algorithm>
#include <array>
#include <string>

#include <fmt/core.h>

#include "core/Globals.h"
#include "exchange/BackupConfig.h"
#include "platform/values/Errors.h"
#include "store/CreateDatabase.h"

namespace exchange {

namespace fs = std::filesystem;

namespace {

bool IsSame(const fs::path& one, const fs::path& other) {
    std::error_code ignored;
    return fs::equivalent(one, other, ignored);
}

} // namespace

void RefuseOwnFile(const fs::path& file) {
    const fs::path database = core::App().DbFile;
    const fs::path folder = database.parent_path();
    const std::array<fs::path, 9> own = {database,
                                         fs::path(database).replace_extension(".search"),
                                         fs::path(database).replace_extension(".runs"),
                                         database.string() + "-wal",
                                         database.string() + "-shm",
                                         database.string() + "-journal",
                                         folder / store::kVersionFile,
                                         folder / kBackupConfigFile,
                                         folder / "Notes.txt"};
    const bool isInFolder = IsSame(fs::absolute(file).parent_path(), folder);
    const bool isOwn = std::ranges::any_of(own, [&](const fs::path& each) {
        // Names are compared too, since not all of these files exist all the time.
        return IsSame(file, each) || (isInFolder && file.filename() == each.filename());
    });
    if (!isOwn) return;
    throw platform::Error(fmt::format(
        "{} belongs to the database and can't be replaced. Choose another name.", file.string()));
}

} // namespace exchange
