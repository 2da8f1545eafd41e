#include <gtest/gtest.h>
#include <sqlite3.h>

#include "TestTables.h"

namespace platform::dialect {
namespace {

TEST(Catalog, FindsNamesInAnyCase) {
    EXPECT_EQ(TestCatalog().Find("PERSON")->name, "Person");
    EXPECT_EQ(TestCatalog().Find("person")->Find("CHECK #")->type, FieldType::Text);
    EXPECT_EQ(TestCatalog().Find("people"), nullptr);
    EXPECT_EQ(TestCatalog().Find("Pay")->Find("Name"), nullptr);
}

TEST(Catalog, DeclarationsReadBackAsTheirTypes) {
    using enum FieldType;
    for (const FieldType type : {Integer, Long, Double, Currency, Boolean, Text, Memo})
        EXPECT_EQ(TypeOfDeclaration(DeclarationOf(type)), type) << FieldTypeName(type);
    EXPECT_EQ(TypeOfDeclaration("DATETEXT"), Text);
    EXPECT_EQ(TypeOfDeclaration("something else"), Text);
    EXPECT_EQ(TypeOfDeclaration("currency"), Currency);
}

// The engine picks what a column turns values into from its declaration.
TEST(Catalog, DeclarationsKeepWhatIsStored) {
    struct Case {
        std::string_view declaration;
        const char* stored;
        const char* kind;
    };
    const Case cases[] = {
        {"MEMO TEXT", "'007'", "text"}, {"DATETEXT", "'20240101'", "text"},
        {"TEXT", "'1e5'", "text"},      {"CURRENCY", "9007199254740993", "integer"},
        {"DOUBLE", "5", "real"},        {"BOOLEAN", "1", "integer"},
        {"SMALLINT", "5", "integer"},
    };
    sqlite3* connection = nullptr;
    sqlite3_open(":memory:", &connection);
    for (const auto& [declaration, stored, kind] : cases) {
        const std::string script = "CREATE TABLE t (x " + std::string(declaration) +
                                   "); INSERT INTO t VALUES (" + stored + ");";
        sqlite3_exec(connection, script.c_str(), nullptr, nullptr, nullptr);
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(connection, "SELECT typeof(x) FROM t", -1, &statement, nullptr);
        ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW) << declaration;
        EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)), kind);
        sqlite3_finalize(statement);
        sqlite3_exec(connection, "DROP TABLE t", nullptr, nullptr, nullptr);
    }
    sqlite3_close(connection);
}

} // namespace
} // namespace platform::dialect
