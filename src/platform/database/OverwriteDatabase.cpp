#include "platform/database/OverwriteDatabase.h"

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include "platform/database/DatabaseFile.h"
#include "platform/database/EngineFailure.h"

namespace platform {

void OverwriteDatabase(const std::filesystem::path& database, const std::filesystem::path& by) {
    const auto source = OpenDatabaseFile(by, OpenMode::ReadOnly);
    const auto target = OpenDatabaseFile(database, OpenMode::ReadWrite);
    constexpr const char* kMain = "main";
    sqlite3_backup* const copying =
        sqlite3_backup_init(target->getHandle(), kMain, source->getHandle(), kMain);
    if (copying == nullptr) ThrowEngineError(target->getHandle());
    constexpr int kAllPages = -1;
    const int stepped = sqlite3_backup_step(copying, kAllPages);
    const int finished = sqlite3_backup_finish(copying); // commits, or rolls back
    const int result = stepped == SQLITE_DONE ? finished : stepped;
    if (result != SQLITE_OK) ThrowEngineError(result);
}

} // namespace platform
