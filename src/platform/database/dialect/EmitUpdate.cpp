#include "platform/database/dialect/Emitter.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

void Emitter::EmitUpdate(const BoundStatement& statement) {
    sql_ += "UPDATE ";
    sql_ += EngineName(statement.table);
    std::string_view separator = " SET ";
    for (std::size_t i = 0; i < statement.columns.size(); ++i) {
        sql_ += separator;
        sql_ += EngineName(statement.columns[i]);
        sql_ += " = ";
        Emit(*statement.values[i]);
        separator = ", ";
    }
    EmitClause(" WHERE ", statement.where);
}

} // namespace platform::dialect
