#include "store/CreateDatabase.h"

#include <string>
#include <system_error>

#include <fmt/core.h>

#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "store/NewFile.h"
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

void CreateDatabase(const fs::path& directory) {
    const fs::path file = directory / kDatabaseFile;
    NewFolder folder(directory);
    NewFile database(file);
    platform::Connection connection;
    connection.Open(database.Draft(), platform::OpenMode::Create);
    CreateTables(connection);
    connection.Close();
    // The version first: a database is never seen without it, while a version alone is no database.
    platform::WriteFileAtomically(directory / kVersionFile, std::to_string(kDatabaseVersion));
    database.Publish();
    folder.Keep();
}

} // namespace store
