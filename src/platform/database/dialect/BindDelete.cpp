#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

void Binder::BindDelete(const Statement& statement, BoundStatement& bound) {
    const Table& table = FindTable(statement.table, statement.tablePosition);
    bound.kind = StatementKind::Delete;
    bound.table = table.name;
    Scope scope;
    scope.sources.push_back({table.name, &table, nullptr});
    scope_ = &scope;
    bound.where = BindCondition(statement.where, "WHERE");
    scope_ = nullptr;
}

} // namespace platform::dialect
