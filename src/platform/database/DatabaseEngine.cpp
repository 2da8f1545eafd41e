#include "platform/database/DatabaseEngine.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

#include <algorithm>
#include <limits>

#include "platform/database/DatabaseFile.h"
#include "platform/database/EngineFailure.h"
#include "platform/database/PendingRows.h"
#include "platform/database/StatementProbe.h"
#include "platform/database/dialect/RuntimeFunctions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"

namespace platform {

namespace {

constexpr std::size_t kStatementsKept = 200;

constexpr const char* kReadSchema =
    "SELECT m.name, c.name, c.type FROM sqlite_master m JOIN pragma_table_info(m.name) c "
    "WHERE m.type = 'table' AND m.name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY m.rowid, c.cid";

std::function<void()>& Probe() {
    static std::function<void()> probe;
    return probe;
}

bool IsNameLetter(char c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return letter || (c >= '0' && c <= '9') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

// Returns the name in a statement that consists only of a name, bare or in brackets; empty for any
// other statement.
std::string_view BareName(std::string_view sql) {
    sql = Trim(sql);
    if (sql.size() > 2 && sql.front() == '[' && sql.find(']') == sql.size() - 1) {
        return sql.substr(1, sql.size() - 2);
    }
    return std::ranges::all_of(sql, IsNameLetter) ? sql : std::string_view();
}

dialect::CompiledStatement CompileStatement(std::string_view sql, const dialect::Catalog& tables) {
    const std::string_view table = BareName(sql);
    if (table.empty()) return dialect::Compile(sql, tables);
    return dialect::Compile("SELECT * FROM " + dialect::QuoteName(table), tables);
}

[[noreturn]] void ThrowParameter(std::size_t index, const Error& error) {
    throw DatabaseError("Parameter " + std::to_string(index + 1) + ": " + error.what());
}

void BindValue(PreparedStatement& statement, int index, const Value& value, FieldType type) {
    std::string scratch;
    const Cell cell = StoreCell(value, type, scratch);
    const bool passing = cell.bytes.data() == scratch.data();
    statement.Bind(
        index, cell,
        passing ? PreparedStatement::TextLife::Passing : PreparedStatement::TextLife::UntilReset);
}

} // namespace

void SetStatementProbe(std::function<void()> probe) {
    Probe() = std::move(probe);
}

DatabaseEngine::DatabaseEngine(const std::filesystem::path& file, OpenMode mode)
    : database_(OpenDatabaseFile(file, mode)), statements_(kStatementsKept) {
    dialect::RegisterRuntimeFunctions(Handle());
    ReadCatalog();
}

DatabaseEngine::~DatabaseEngine() {
    try {
        ReadPending();
    } catch (const Error&) {
        // If a row set can't be read to its end, it keeps the rows that were read.
    }
}

bool DatabaseEngine::IsReadOnly() const {
    return sqlite3_db_readonly(Handle(), "main") != 0;
}

void DatabaseEngine::ReadPending() {
    while (!pending_.empty())
        pending_.back()->ReadTo(std::numeric_limits<std::size_t>::max());
}

void DatabaseEngine::ReadCatalog() {
    try {
        dialect::Catalog catalog;
        dialect::Table table;
        SQLite::Statement schema(*database_, kReadSchema);
        while (schema.executeStep()) {
            const std::string name = schema.getColumn(0).getString();
            if (name != table.name) {
                if (!table.columns.empty()) catalog.Add(std::move(table));
                table = {name, {}};
            }
            table.columns.push_back({schema.getColumn(1).getString(),
                                     dialect::TypeOfDeclaration(schema.getColumn(2).getString())});
        }
        if (!table.columns.empty()) catalog.Add(std::move(table));
        catalog_ = std::move(catalog);
    } catch (const SQLite::Exception&) {
        ThrowEngineError(Handle());
    }
}

CachedStatement& DatabaseEngine::Prepare(std::string_view sql) {
    if (CachedStatement* found = statements_.Find(sql)) return *found;
    auto plan = std::make_shared<StatementPlan>();
    plan->compiled = CompileStatement(sql, catalog_);
    plan->number = ++lastPlan_;
    PreparedStatement statement(Handle(), plan->compiled.sql);
    return statements_.Add(sql, {std::move(plan), std::move(statement)});
}

void DatabaseEngine::Bind(CachedStatement& statement, std::span<const Value> parameters) {
    const std::vector<FieldType>& types = statement.plan->compiled.parameters;
    if (types.size() != parameters.size()) {
        throw DatabaseError("The statement needs " + std::to_string(types.size()) +
                            " parameters; " + std::to_string(parameters.size()) + " were given.");
    }
    for (std::size_t i = 0; i < types.size(); ++i) {
        try {
            BindValue(statement.statement, static_cast<int>(i) + 1, parameters[i], types[i]);
        } catch (const ConversionError& error) {
            ThrowParameter(i, error);
        } catch (const OverflowError& error) {
            ThrowParameter(i, error);
        }
    }
}

std::int64_t DatabaseEngine::Run(CachedStatement& statement) {
    CheckUnit();
    const bool select =
        statement.plan && statement.plan->compiled.kind == dialect::StatementKind::Select;
    if (!select) ReadPending();
    if (Probe()) Probe()();
    const StatementRun run(statement.statement);
    while (statement.statement.Step()) {
    }
    return select ? 0 : sqlite3_changes64(Handle());
}

void DatabaseEngine::CheckUnit() const {
    if (level_ > 0 && sqlite3_get_autocommit(Handle()) != 0) {
        throw DatabaseError("An earlier failure has rolled back everything. Start again.");
    }
}

void DatabaseEngine::RunScript(std::string_view script) {
    CheckUnit();
    statements_.Clear();
    const int level = Begin();
    schemaChangedInUnit_ = true;
    try {
        Command(std::string(script));
        ReadCatalog();
        Commit(level);
    } catch (...) {
        RollBack(level);
        throw;
    }
}

void DatabaseEngine::Command(const std::string& sql) {
    ReadPending();
    if (Probe()) Probe()();
    if (database_->tryExec(sql) != SQLITE_OK) ThrowEngineError(Handle());
}

int DatabaseEngine::Begin() {
    CheckUnit();
    Command(level_ == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT unit_" + std::to_string(level_));
    return ++level_;
}

void DatabaseEngine::Commit(int level) {
    if (level == 0 || level != level_)
        throw DatabaseError("This unit of work contains an open one, or has ended.");
    CheckUnit();
    Command(level == 1 ? "COMMIT" : "RELEASE unit_" + std::to_string(level - 1));
    if (--level_ == 0) schemaChangedInUnit_ = false;
}

void DatabaseEngine::RollBack(int level) noexcept {
    if (level == 0 || level > level_) return;
    level_ = level - 1;
    try {
        ReadPending();
    } catch (const Error&) {
        // Rows still to be read inside the unit end with it.
    }
    if (sqlite3_get_autocommit(Handle()) == 0) {
        const std::string name = "unit_" + std::to_string(level_);
        database_->tryExec(level_ == 0 ? "ROLLBACK" : "ROLLBACK TO " + name + "; RELEASE " + name);
    }
    if (!schemaChangedInUnit_) return;
    schemaChangedInUnit_ = level_ > 0;
    statements_.Clear();
    try {
        ReadCatalog();
    } catch (const Error&) {
        // The tables stay as they were when last read; a statement on a table that no longer exists
        // fails with that message.
    }
}

} // namespace platform
