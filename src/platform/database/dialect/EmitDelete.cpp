#include "platform/database/dialect/Emitter.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

void Emitter::EmitDelete(const BoundStatement& statement) {
    sql_ += "DELETE FROM ";
    sql_ += EngineName(statement.table);
    EmitClause(" WHERE ", statement.where);
}

} // namespace platform::dialect
