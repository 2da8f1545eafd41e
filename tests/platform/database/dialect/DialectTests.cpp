#include <gtest/gtest.h>

#include "TestTables.h"
#include "support/StatementTests.h"

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const std::filesystem::path folder = VESTREL_TEST_DATA;
    support::RegisterStatementTests(folder, folder / "seed.test", [](platform::Connection& books) {
        books.RunScript(platform::dialect::TestSchema());
    });
    return RUN_ALL_TESTS();
}
