#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <random>
#include <string>

#include "TestTables.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/RuntimeFunctions.h"
#include "platform/values/Errors.h"
#include "support/Words.h"

namespace platform::dialect {
namespace {

class Engine {
  public:
    Engine() {
        sqlite3_open(":memory:", &connection_);
        RegisterRuntimeFunctions(connection_);
        sqlite3_exec(connection_, TestSchema().c_str(), nullptr, nullptr, nullptr);
    }
    ~Engine() { sqlite3_close(connection_); }
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// The engine's message about a statement; empty if it accepts it.
    std::string Refusal(const std::string& sql) const {
        sqlite3_stmt* statement = nullptr;
        const int code = sqlite3_prepare_v2(connection_, sql.c_str(), -1, &statement, nullptr);
        sqlite3_finalize(statement);
        return code == SQLITE_OK ? "" : sqlite3_errmsg(connection_);
    }

  private:
    sqlite3* connection_ = nullptr;
};

std::string Repeated(std::string_view text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

TEST(Limits, LongStatementsCompileForTheEngine) {
    const Engine engine;
    const std::string statements[] = {
        "SELECT Id FROM Pay WHERE Id = 1" + Repeated(" OR Id = 1", 5000),
        "SELECT Id FROM Pay WHERE Id = 1" + Repeated(" AND Id = 1 OR Amount > 1", 1000),
        "SELECT Id FROM Pay WHERE Id IN (1" + Repeated(", 1", 5000) + ")",
        "SELECT 'x'" + Repeated(" & Category", 2000) + " FROM Pay",
        "SELECT Id" + Repeated(" + 1", 499) + " FROM Pay",
        "SELECT Category" + Repeated(" + 'x'", 499) + " FROM Pay",
        "SELECT '" + std::string(20'000, 'x') + "' FROM Pay",
        "SELECT " + Repeated("Amount, ", 1500) + "Id FROM Pay",
        "SELECT " + Repeated("(", 90) + "1" + Repeated(")", 90),
        "SELECT " + Repeated("IIf(Id = 1, 2, ", 80) + "3" + Repeated(")", 80) + " FROM Pay",
        "SELECT 1" + Repeated(" UNION SELECT 2", 400),
    };
    for (const std::string& statement : statements) {
        EXPECT_EQ(engine.Refusal(Compile(statement, TestCatalog()).sql), "")
            << statement.substr(0, 60);
    }
}

TEST(Limits, WhatIsNestedTooDeeplyIsAFault) {
    const std::string statements[] = {
        "SELECT " + Repeated("(", 10'000),
        "SELECT " + Repeated("(", 10'000) + "1" + Repeated(")", 10'000),
        "SELECT " + Repeated("-", 10'000) + "1",
        "SELECT " + Repeated("NOT ", 10'000) + "1",
        "SELECT 1" + Repeated(" + 1", 10'000),
        "SELECT 1" + Repeated(" ^ -1", 10'000),
        "SELECT 1" + Repeated(" IS NULL", 10'000),
        "SELECT 1" + Repeated(" = 1", 10'000),
        "SELECT " + Repeated("Abs(", 10'000),
        "SELECT * FROM " + Repeated("(", 10'000),
        "SELECT * FROM " + Repeated("(SELECT * FROM ", 10'000),
        "SELECT * FROM Pay" + Repeated(" INNER JOIN Pay ON (1 = 1", 10'000),
        "SELECT * FROM Pay WHERE Id IN " + Repeated("(SELECT Id FROM Pay WHERE Id IN ", 10'000),
    };
    for (const std::string& statement : statements) {
        EXPECT_THROW(Compile(statement, TestCatalog()), DialectError) << statement.substr(0, 60);
    }
}

// Pieces of statements in any order: what compiles, the engine takes.
TEST(Limits, NonsenseIsAFaultOrCompilesForTheEngine) {
    const auto pieces = support::Split(
        "SELECT |FROM |WHERE |Pay |Person |Id |Amount |Name |Pay.Id |* |, |( |) |= |+ |- |AND |NOT "
        "|IN |LIKE |'x' |1 |2.5 |#1/1/2024# |NULL |True |? |IIf(|Sum(|Count(*) |Due |DateValue(|"
        "UNION |ORDER BY |GROUP BY |BETWEEN |IS |DISTINCT |TOP 1 |AS |UPDATE Pay SET |DELETE FROM "
        "Pay |INSERT INTO Pay (Id) |VALUES (|'|[|\\|INNER JOIN |ON ");
    const Engine engine;
    std::mt19937 random(20240229);
    std::uniform_int_distribution<std::size_t> any(0, pieces.size() - 1);
    std::uniform_int_distribution<int> length(1, 12);
    constexpr std::string_view kStarts[] = {"SELECT ", "SELECT Id FROM Pay WHERE ",
                                            "UPDATE Pay SET Amount = ", ""};
    int compiled = 0;
    for (int i = 0; i < 40'000; ++i) {
        std::string statement(kStarts[static_cast<std::size_t>(i) % std::size(kStarts)]);
        for (int piece = length(random); piece > 0; --piece)
            statement += pieces[any(random)];
        try {
            const CompiledStatement result = Compile(statement, TestCatalog());
            ++compiled;
            EXPECT_EQ(engine.Refusal(result.sql), "") << statement << "\n" << result.sql;
        } catch (const DialectError& error) {
            EXPECT_LE(error.Position(), statement.size()) << statement;
        }
    }
    EXPECT_GT(compiled, 400);
}

} // namespace
} // namespace platform::dialect
