#include "platform/database/DatabaseReader.h"

#include <string>
#include <vector>

#include "platform/database/DatabaseEngine.h"
#include "platform/database/PreparedStatement.h"
#include "platform/database/dialect/EngineSql.h"
#include "platform/values/Errors.h"

namespace platform {

namespace {

const dialect::Table& TableOf(const DatabaseEngine& engine, std::string_view name) {
    const dialect::Table* const table = engine.Tables().Find(name);
    if (table == nullptr) throw DatabaseError("There is no table " + std::string(name) + ".");
    return *table;
}

void RunCommand(sqlite3* handle, std::string_view sql) {
    PreparedStatement(handle, sql).Step();
}

} // namespace

DatabaseReader::DatabaseReader(const std::filesystem::path& database)
    : engine_(std::make_unique<DatabaseEngine>(database, OpenMode::ReadOnly)) {
    // The first read after BEGIN fixes the view of the database.
    RunCommand(engine_->Handle(), "BEGIN");
    RunCommand(engine_->Handle(), "SELECT Count(*) FROM sqlite_master");
}

DatabaseReader::~DatabaseReader() = default;

const dialect::Catalog& DatabaseReader::Tables() const {
    return engine_->Tables();
}

std::int64_t DatabaseReader::CountRows(std::string_view table) {
    std::string sql = "SELECT Count(*) FROM ";
    sql += dialect::EngineName(TableOf(*engine_, table).name);
    PreparedStatement count(engine_->Handle(), sql);
    return count.Step() ? count.Column(0).integer : 0;
}

void DatabaseReader::ReadRows(std::string_view table, const std::function<void(Row row)>& work) {
    const dialect::Table& known = TableOf(*engine_, table);
    std::string sql;
    for (const dialect::Column& column : known.columns) {
        sql += sql.empty() ? "SELECT " : ", ";
        sql += dialect::EngineName(column.name);
    }
    sql += " FROM ";
    sql += dialect::EngineName(known.name);
    PreparedStatement rows(engine_->Handle(), sql);
    std::vector<Cell> cells(known.columns.size());
    while (rows.Step()) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            cells[i] = rows.Column(static_cast<int>(i));
        work(cells);
    }
}

} // namespace platform
