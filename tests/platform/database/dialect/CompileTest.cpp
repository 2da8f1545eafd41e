#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "TestTables.h"
#include "platform/database/dialect/Compiler.h"
#include "support/Cases.h"

namespace platform::dialect {
namespace {

using support::Case;
using support::ForEachCase;
using testing::ElementsAre;
using testing::IsEmpty;

CompiledStatement CompileText(std::string_view text) {
    return Compile(text, TestCatalog());
}

constexpr const char* kCases = VESTREL_TEST_DATA "/compile.cases";

/// The texts, separated by commas.
template <typename Items, typename Text>
std::string List(const Items& items, Text text) {
    std::string list;
    for (const auto& item : items)
        list.append(list.empty() ? "" : ", ").append(text(item));
    return list;
}

TEST(Compile, EmitsPlainConditionsWithNoMoreParenthesesThanNeeded) {
    ForEachCase(kCases, "conditions", [](const Case& each) {
        EXPECT_EQ(CompileText(each["statement"]).sql, each["sql"]);
    });
}

TEST(Compile, KnowsTheFieldsThatColumnsShow) {
    ForEachCase(kCases, "fields that columns show", [](const Case& each) {
        const auto field = [](const ResultColumn& column) {
            return column.field.empty() ? "-" : column.table + "." + column.field;
        };
        EXPECT_EQ(List(CompileText(each["statement"]).columns, field), each["fields"]);
    });
}

TEST(Compile, TakesParametersTypesFromTheirPlaces) {
    ForEachCase(kCases, "types of parameters", [](const Case& each) {
        EXPECT_EQ(List(CompileText(each["statement"]).parameters, FieldTypeName), each["types"]);
    });
}

TEST(Compile, TellsTheTableBehindRowsThatCanBeWritten) {
    const CompiledStatement rows =
        CompileText("SELECT Id AS Number, Amount * 2, Due FROM Pay AS p WHERE Id > 1 ORDER BY 3");
    EXPECT_EQ(rows.table, "Pay");
    EXPECT_THAT(rows.sources, ElementsAre("Id", "", "Due"));
    EXPECT_NE(rows.sql.find(R"(, "p".rowid FROM)"), std::string::npos) << rows.sql;

    for (const char* statement :
         {"SELECT DISTINCT Id FROM Pay", "SELECT Id FROM Pay GROUP BY Id",
          "SELECT Sum(Id) FROM Pay", "SELECT Pay.Id FROM Pay, Person",
          "SELECT Id FROM Pay UNION SELECT Id FROM Pay", "SELECT * FROM (SELECT Id FROM Pay) AS d",
          "SELECT 1", "SELECT 1 FROM Pay HAVING Max(Id) = 1"}) {
        const CompiledStatement other = CompileText(statement);
        EXPECT_THAT(other.table, IsEmpty()) << statement;
        EXPECT_THAT(other.sources, IsEmpty()) << statement;
        EXPECT_EQ(other.sql.find("rowid"), std::string::npos) << statement;
    }
}

TEST(Compile, QuotesForComposedStatements) {
    EXPECT_EQ(QuoteText("O'Brien"), "'O''Brien'");
    EXPECT_EQ(QuoteName("Check #"), "[Check #]");
    EXPECT_EQ(QuoteDate(Date(2024, 2, 9)), "#02/09/2024#");
}

} // namespace
} // namespace platform::dialect
