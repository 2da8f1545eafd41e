#include "platform/database/Integrity.h"

#include "platform/database/DatabaseFile.h"
#include "platform/database/PreparedStatement.h"
#include "platform/values/Errors.h"

namespace platform {

std::vector<std::string> CheckIntegrity(const std::filesystem::path& database, CheckDepth depth) {
    const auto file = OpenDatabaseFile(database, OpenMode::ReadOnly);
    PreparedStatement check(file->getHandle(), depth == CheckDepth::Quick
                                                   ? "PRAGMA quick_check(100)"
                                                   : "PRAGMA integrity_check(100)");
    std::vector<std::string> faults;
    while (check.Step()) {
        std::string line(check.Column(0).bytes);
        if (line != "ok") faults.push_back(std::move(line));
    }
    return faults;
}

} // namespace platform
