#include "platform/database/MemoryCopy.h"

#include <SQLiteCpp/Database.h>
#include <sqlite3.h>

#include "platform/database/DatabaseCopy.h"
#include "platform/database/DatabaseFile.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

/// The engine's own small steps between two calls of `stop`; they take a fraction of a millisecond.
constexpr int kStepsPerQuestion = 1000;

int Ask(void* stop) {
    return (*static_cast<const std::function<bool()>*>(stop))() ? 1 : 0;
}

} // namespace

void OpenCopyInMemory(Connection& connection, const std::filesystem::path& database,
                      const std::function<bool()>& stop) {
    const auto check = [&stop](std::int64_t /*bytesDone*/) {
        if (stop && stop()) throw DatabaseError("The copying was stopped.");
    };
    check(0);
    auto copy = DatabaseCopy(database).ToMemory(check);
    if (stop) {
        void* const question = const_cast<std::function<bool()>*>(&stop);
        sqlite3_progress_handler(copy->getHandle(), kStepsPerQuestion, Ask, question);
    }
    const InMemory lent(std::move(copy));
    connection.Open(InMemory::Name());
}

} // namespace platform
