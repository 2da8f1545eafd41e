#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "TestTables.h"
#include "platform/database/dialect/Compiler.h"

namespace platform::dialect {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

CompiledStatement CompileText(std::string_view text) {
    return Compile(text, TestCatalog());
}

struct SqlCase {
    const char* statement;
    const char* sql;
};

// The conditions that the engine's planner must find in plain form to use an index, and what it
// must find bracketed to mean the same.
TEST(Compile, EmitsPlainConditionsWithNoMoreParenthesesThanNeeded) {
    constexpr SqlCase kCases[] = {
        {"DELETE * FROM Pay WHERE (((Id = 5)))", R"(DELETE FROM "Pay" WHERE "Pay"."Id" = 5)"},
        {"DELETE FROM Pay WHERE Id = ? AND Amount > 0.5",
         R"(DELETE FROM "Pay" WHERE "Pay"."Id" = ?1 AND "Pay"."Amount" > 5000)"},
        {"DELETE FROM Pay WHERE Id IN (1, 2) OR Id BETWEEN 3 AND 4",
         R"(DELETE FROM "Pay" WHERE "Pay"."Id" IN (1, 2) OR "Pay"."Id" BETWEEN 3 AND 4)"},
        {"DELETE FROM Pay WHERE DateValue(Due) >= #1/1/1900#",
         R"(DELETE FROM "Pay" WHERE vestrel_date("Pay"."Due") >= 2)"},
        {"DELETE FROM Pay WHERE Category = 'x' & 'y'",
         R"(DELETE FROM "Pay" WHERE "Pay"."Category" COLLATE VESTREL_TEXT = 'x' || 'y')"},
        {"DELETE FROM Pay WHERE Category & '' = 'x'",
         R"(DELETE FROM "Pay" WHERE (IFNULL("Pay"."Category", '') || '') COLLATE VESTREL_TEXT = 'x')"},
        {"DELETE FROM Pay WHERE (Id = 1 OR Id = 2) AND NOT (Id = 3 AND Id = 4)",
         R"(DELETE FROM "Pay" WHERE ("Pay"."Id" = 1 OR "Pay"."Id" = 2) AND )"
         R"(NOT ("Pay"."Id" = 3 AND "Pay"."Id" = 4))"},
        {"DELETE FROM Pay WHERE 1 - (2 - 3) - 4 - -5 = -Id * (1 + 2)",
         R"(DELETE FROM "Pay" WHERE 1 - (2 - 3) - 4 - -5 = -"Pay"."Id" * (1 + 2))"},
        {"DELETE FROM Pay WHERE - - Id = --5", R"(DELETE FROM "Pay" WHERE -(-"Pay"."Id") = -(-5))"},
        {"DELETE FROM Pay WHERE (Id = 1) = (Id < 2)",
         R"(DELETE FROM "Pay" WHERE ("Pay"."Id" = 1) = ("Pay"."Id" < 2))"},
        {"UPDATE Pay SET Amount = Amount - 1 + 2 * Id",
         R"(UPDATE "Pay" SET "Amount" = vestrel_exact("Pay"."Amount" - 10000 + )"
         R"(2 * "Pay"."Id" * 10000))"},
    };
    for (const auto& [statement, sql] : kCases)
        EXPECT_EQ(CompileText(statement).sql, sql);
}

TEST(Compile, KnowsTheFieldsThatColumnsShow) {
    const auto fields = [](std::string_view text) {
        std::vector<std::string> found;
        for (const ResultColumn& column : CompileText(text).columns)
            found.push_back(column.field.empty() ? "" : column.table + "." + column.field);
        return found;
    };
    EXPECT_THAT(fields("SELECT category AS C, P.Category, Category & '', Due FROM Pay AS P"),
                ElementsAre("Pay.Category", "Pay.Category", "", "Pay.Due"));
    EXPECT_THAT(fields("SELECT * FROM (SELECT DISTINCT Category FROM Pay) AS P"),
                ElementsAre("Pay.Category"));
    EXPECT_THAT(fields("SELECT P.C, 1 FROM (SELECT Category AS C FROM Pay) AS P"),
                ElementsAre("Pay.Category", ""));
    EXPECT_THAT(fields("SELECT Category FROM Pay UNION SELECT Category FROM Pay"),
                ElementsAre("Pay.Category"));
    EXPECT_THAT(fields("SELECT Category FROM Pay UNION SELECT Name FROM Person"), ElementsAre(""));
}

TEST(Compile, TakesParametersTypesFromTheirPlaces) {
    struct Case {
        const char* statement;
        std::vector<FieldType> types;
    };
    using enum FieldType;
    const Case cases[] = {
        {"SELECT Id FROM Pay WHERE Amount > ? AND ? = Category AND Class = ?",
         {Currency, Text, Long}},
        {"SELECT Id FROM Pay WHERE DateValue(Due) BETWEEN ? AND ?", {Date, Date}},
        {"SELECT Id FROM Pay WHERE Id IN (?, ?) AND Amount IN (SELECT ? FROM Pay)",
         {Long, Long, Text}},
        {"SELECT Id FROM Person WHERE Active = ? AND Weight < ?", {Boolean, Double}},
        {"SELECT ?, Amount + ?, Name & ?, Left(?, ?), IIf(?, Age, ?) FROM Person, Pay",
         {Text, Currency, Text, Text, Long, Boolean, Integer}},
        {"INSERT INTO Pay VALUES (?, ?, ?, ?, ?, ?)", {Long, Long, Currency, Text, Integer, Text}},
        {"UPDATE Person SET Active = ?, Remark = ? WHERE Id = ? AND ? IS NULL",
         {Boolean, Memo, Long, Text}},
        {"SELECT Id FROM Person WHERE ? = ? OR Name LIKE ?", {Text, Text, Text}},
        {"SELECT Amount FROM Pay UNION SELECT ? FROM Pay", {Currency}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(CompileText(each.statement).parameters, each.types) << each.statement;
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
