#include "platform/database/dialect/Emitter.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

void Emitter::EmitInsert(const BoundStatement& statement) {
    sql_ += "INSERT INTO ";
    sql_ += EngineName(statement.table);
    std::string_view separator = " (";
    for (const std::string_view column : statement.columns) {
        sql_ += separator;
        sql_ += EngineName(column);
        separator = ", ";
    }
    sql_ += ") ";
    if (statement.query) return EmitQuery(*statement.query, ColumnNames::Own);
    separator = "VALUES (";
    for (const BoundPtr& value : statement.values) {
        sql_ += separator;
        Emit(*value);
        separator = ", ";
    }
    sql_ += ')';
}

} // namespace platform::dialect
