#include "platform/database/dialect/Emitter.h"

namespace platform::dialect {

std::string Emitter::Emit(const BoundStatement& statement) {
    sql_.reserve(512);
    switch (statement.kind) {
        case StatementKind::Select:
            EmitQuery(*statement.query, ColumnNames::Own);
            break;
        case StatementKind::Insert:
            EmitInsert(statement);
            break;
        case StatementKind::Update:
            EmitUpdate(statement);
            break;
        case StatementKind::Delete:
            EmitDelete(statement);
            break;
    }
    return std::move(sql_);
}

} // namespace platform::dialect
