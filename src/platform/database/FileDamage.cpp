#include "platform/database/FileDamage.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace platform {

std::string FileDamage(const std::filesystem::path& file) {
    try {
        const SQLite::Database database(file.string(), SQLite::OPEN_READONLY);
        SQLite::Statement check(database, "PRAGMA integrity_check(1)");
        if (!check.executeStep()) return "the check gives no answer";
        std::string answer = check.getColumn(0).getString();
        if (answer == "ok") return {};
        // The faults of one page are several lines, under a heading for the database.
        const std::size_t last = answer.find_last_of('\n');
        return last == std::string::npos ? answer : answer.substr(last + 1);
    } catch (const SQLite::Exception& failure) {
        return failure.what();
    }
}

} // namespace platform
