#include "support/StatementTests.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/core.h>

#include "platform/database/Recordset.h"
#include "platform/values/Csv.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "support/StatementFile.h"
#include "support/TemporaryFolder.h"

namespace support {

namespace {

namespace fs = std::filesystem;

using platform::Connection;
using platform::Recordset;

struct Source {
    fs::path seed;
    MakeTables makeTables;
};

std::string ColumnText(std::string_view name, platform::FieldType type) {
    const bool quoted = name.find_first_of(",:\"") != std::string_view::npos;
    return fmt::format("{}:{}", quoted ? platform::CsvText(name) : std::string(name),
                       platform::FieldTypeName(type));
}

void AppendColumn(std::string& columns, std::string_view column) {
    if (!columns.empty()) columns += ", ";
    columns += column;
}

/// The expected columns with every Table.* written out.
std::string WriteOutTables(std::string_view columns, const platform::dialect::Catalog& catalog) {
    std::string all;
    while (!columns.empty()) {
        bool quoted = false;
        std::size_t end = 0;
        for (; end < columns.size() && (quoted || columns[end] != ','); ++end) {
            if (columns[end] == '"') quoted = !quoted;
        }
        const std::string_view column = platform::Trim(columns.substr(0, end));
        columns.remove_prefix(std::min(columns.size(), end + 1));
        const auto* table =
            column.ends_with(".*") ? catalog.Find(column.substr(0, column.size() - 2)) : nullptr;
        if (table == nullptr) {
            AppendColumn(all, column);
            continue;
        }
        for (const auto& field : table->columns)
            AppendColumn(all, ColumnText(field.name, field.type));
    }
    return all;
}

std::string RowText(Recordset& rows) {
    std::string line;
    for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
        if (i > 0) line += ',';
        platform::AppendCsvCell(line, rows[i].Value());
    }
    return line.empty() ? "null" : line;
}

void CheckQuery(Connection& connection, const ExpectedQuery& query) {
    Recordset rows;
    rows.Open(connection, query.statement);
    std::string columns;
    for (std::size_t i = 0; i < rows.FieldCount(); ++i)
        AppendColumn(columns, ColumnText(rows[i].Name(), rows[i].Type()));
    EXPECT_EQ(columns, WriteOutTables(query.columns, connection.Tables()));
    if (query.anyRows) return;

    std::string expected;
    for (const std::string& row : query.rows)
        expected += row + "\n";
    std::string found;
    for (; !rows.Eof(); rows.MoveNext())
        found += RowText(rows) + "\n";
    EXPECT_EQ(found, expected);
}

void CheckRun(Connection& connection, const StatementBlock& block) {
    const std::string affected = std::to_string(connection.Execute(block.statement));
    if (!block.expected.empty()) {
        EXPECT_EQ(affected, block.expected) << "rows affected";
    }
    if (block.hasQuery) CheckQuery(connection, block.query);
}

void CheckError(Connection& connection, const StatementBlock& block) {
    try {
        connection.Execute(block.statement);
        ADD_FAILURE() << "no error";
    } catch (const platform::Error& error) {
        EXPECT_EQ(error.what(), block.expected);
    }
}

void Check(Connection& connection, const StatementBlock& block) {
    const platform::UnitOfWork takenBack(connection);
    switch (block.kind) {
        case BlockKind::Query:
            CheckQuery(connection, block.query);
            break;
        case BlockKind::Run:
            CheckRun(connection, block);
            break;
        case BlockKind::Error:
            CheckError(connection, block);
            break;
    }
}

/// The database of one statement file.
class Books {
  public:
    Books(const Source& source, const fs::path& file) {
        connection_.Open(folder_ / "Books.mdb", platform::OpenMode::Create);
        source.makeTables(connection_);
        platform::UnitOfWork work(connection_);
        if (!source.seed.empty()) SetUp(source.seed);
        if (file != source.seed) SetUp(file);
        work.Commit();
    }

    Connection& Open() { return connection_; }

  private:
    void SetUp(const fs::path& file) {
        for (const StatementBlock& block : ReadStatementFile(file)) {
            if (!block.keep) continue;
            const testing::ScopedTrace trace(file.c_str(), block.line, block.name);
            CheckRun(connection_, block);
        }
    }

    TemporaryFolder folder_;
    Connection connection_;
};

/// The databases of the files whose tests have run.
Books& BooksOf(const Source& source, const fs::path& file) {
    static std::map<fs::path, std::unique_ptr<Books>> all;
    std::unique_ptr<Books>& books = all[file];
    if (!books) books = std::make_unique<Books>(source, file);
    return *books;
}

class StatementTest : public testing::Test {
  public:
    StatementTest(std::shared_ptr<const Source> source, StatementBlock block)
        : source_(std::move(source)), block_(std::move(block)) {}

    void TestBody() override {
        const testing::ScopedTrace trace(block_.file.c_str(), block_.line, block_.statement);
        try {
            Check(BooksOf(*source_, block_.file).Open(), block_);
        } catch (const platform::Error& error) {
            ADD_FAILURE() << error.what();
        }
    }

  private:
    std::shared_ptr<const Source> source_;
    StatementBlock block_;
};

/// "some-words" as SomeWords, which a test's name may be.
std::string NameOf(std::string_view words) {
    std::string name;
    bool start = true;
    for (const char c : words) {
        const auto letter = static_cast<unsigned char>(c);
        if (std::isalnum(letter) == 0) {
            start = true;
            continue;
        }
        name += start ? static_cast<char>(std::toupper(letter)) : c;
        start = false;
    }
    return name;
}

} // namespace

void RegisterStatementTests(const fs::path& folder, const fs::path& seed,
                            const MakeTables& makeTables) {
    const auto source = std::make_shared<const Source>(Source{seed, makeTables});
    for (const StatementBlock& block : ReadStatementFolder(folder)) {
        if (block.keep) continue;
        const std::string suite = NameOf(block.file.stem().string());
        const std::string name = fmt::format("{:03}{}", block.number, NameOf(block.name));
        testing::RegisterTest(suite.c_str(), name.c_str(), nullptr, nullptr, block.file.c_str(),
                              block.line, [source, block]() -> testing::Test* {
                                  return new StatementTest(source, block); // owned by the framework
                              });
    }
}

} // namespace support
