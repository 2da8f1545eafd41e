#include "platform/database/RowWriter.h"

#include "platform/database/DatabaseEngine.h"
#include "platform/database/dialect/EngineSql.h"
#include "platform/values/Errors.h"

namespace platform {

RowWriter::RowWriter(Connection& connection, std::string_view table,
                     std::span<const std::string> fields)
    : connection_(connection) {
    const dialect::Table* const known = connection.Tables().Find(table);
    if (known == nullptr) throw FieldError("There is no table " + std::string(table) + ".");
    std::string names;
    std::string places;
    for (const std::string& field : fields) {
        const dialect::Column* const column = known->Find(field);
        if (column == nullptr) throw FieldError(known->name + " has no field " + field + ".");
        types_.push_back(column->type);
        names += names.empty() ? "" : ", ";
        names += dialect::EngineName(column->name);
        places += places.empty() ? "?" : ", ?";
    }
    std::string sql = "INSERT INTO ";
    sql += dialect::EngineName(known->name);
    sql += " (" + names + ") VALUES (" + places + ")";
    insert_ = std::make_unique<CachedStatement>(
        CachedStatement{nullptr, PreparedStatement(connection.Engine().Handle(), sql)});
}

RowWriter::~RowWriter() = default;

void RowWriter::Add(std::span<const Cell> cells) {
    int index = 0;
    for (const Cell& cell : cells)
        insert_->statement.Bind(++index, cell, PreparedStatement::TextLife::UntilReset);
    connection_.Engine().Run(*insert_);
}

} // namespace platform
