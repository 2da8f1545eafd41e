#include "platform/database/dialect/Emitter.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

void Emitter::EmitUpdate(const BoundStatement& statement) {
    sql_ += "UPDATE ";
    AppendEngineName(sql_, statement.table);
    std::string_view separator = " SET ";
    for (std::size_t i = 0; i < statement.columns.size(); ++i) {
        sql_ += separator;
        AppendEngineName(sql_, statement.columns[i]);
        sql_ += " = ";
        Emit(*statement.values[i]);
        separator = ", ";
    }
    EmitClause(" WHERE ", statement.where);
}

} // namespace platform::dialect
