#include "store/CreateDatabase.h"

#include <string>

#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "store/Tables.h"
#include "store/TransCategories.h"

namespace store {

namespace fs = std::filesystem;

void CreateTables(platform::Connection& connection) {
    platform::UnitOfWork work(connection);
    connection.RunScript(SchemaScript(BooksTables()));
    InitTransCategories(connection);
    work.Commit();
}

NewDatabase::NewDatabase(const fs::path& directory)
    : directory_(directory), folder_(directory), file_(directory / kDatabaseFile) {
    platform::Connection connection;
    connection.Open(file_.Draft(), platform::OpenMode::Create);
    CreateTables(connection);
}

void NewDatabase::Publish() {
    // The version first: a database is never seen without it, and a version without one is not
    // taken for one.
    platform::WriteFileAtomically(directory_ / kVersionFile, std::to_string(kDatabaseVersion));
    file_.Publish();
    folder_.Keep();
}

void CreateDatabase(const fs::path& directory) {
    NewDatabase(directory).Publish();
}

} // namespace store
