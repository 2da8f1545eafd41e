#include "store/CreateDatabase.h"

#include <string>
#include <system_error>
#include <vector>

#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "store/Tables.h"
#include "store/TransCategories.h"

namespace store {

namespace fs = std::filesystem;

void CreateTables(platform::Connection& connection) {
    platform::UnitOfWork work(connection);
    connection.RunScript(SchemaScript(BooksTables()) + SchemaScript(AddedTables()));
    InitTransCategories(connection);
    work.Commit();
}

void AddMissingTables(platform::Connection& connection) {
    if (connection.IsReadOnly()) return;
    std::vector<TableDefinition> missing;
    for (const TableDefinition& table : AddedTables()) {
        if (connection.Tables().Find(table.name) == nullptr) missing.push_back(table);
    }
    if (missing.empty()) return;
    try {
        connection.RunScript(SchemaScript(missing));
    } catch (const platform::DatabaseError&) {
        // Another program has added them since the books were opened: the tables are read again.
        connection.RunScript("SELECT 1;");
    }
}

NewDatabase::NewDatabase(const fs::path& directory)
    : directory_(directory), folder_(directory), file_(directory / kDatabaseFile) {
    platform::Connection connection;
    connection.Open(file_.Draft(), platform::OpenMode::Create);
    CreateTables(connection);
}

void NewDatabase::Publish() {
    // The version is written first: a database without it is never seen, and a version without a
    // database isn't taken for one.
    const fs::path version = directory_ / kVersionFile;
    std::error_code ignored;
    const bool hadVersion = fs::exists(version, ignored);
    platform::WriteFileAtomically(version, std::to_string(kDatabaseVersion));
    try {
        file_.Publish();
    } catch (...) {
        if (!hadVersion) fs::remove(version, ignored);
        throw;
    }
    folder_.Keep();
}

void CreateDatabase(const fs::path& directory) {
    NewDatabase(directory).Publish();
}

} // namespace store
