#include <gtest/gtest.h>

#include "store/CreateDatabase.h"
#include "store/Tables.h"
#include "support/StatementTests.h"

namespace {

// The reference tables are in a database of their own; here they are beside the books'.
void MakeTables(platform::Connection& connection) {
    store::CreateTables(connection);
    connection.RunScript(store::SchemaScript(store::ReferenceTables()));
}

} // namespace

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const std::filesystem::path folder = VESTREL_TEST_DATA;
    support::RegisterStatementTests(folder, folder / "seed.test", MakeTables);
    return RUN_ALL_TESTS();
}
