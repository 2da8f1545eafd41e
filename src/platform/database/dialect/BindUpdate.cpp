#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

void Binder::BindUpdate(const Statement& statement, BoundStatement& bound) {
    const Table& table = FindTable(statement.table, statement.tablePosition);
    bound.kind = StatementKind::Update;
    bound.table = table.name;
    Scope scope;
    scope.sources.push_back({table.name, &table, nullptr});
    scope_ = &scope;
    const RowClause set(*this, "SET");
    for (const Assignment& assignment : statement.assignments) {
        const Column& field = FindField(table, assignment);
        if (std::ranges::find(bound.columns, field.name) != bound.columns.end()) {
            Fault(assignment.position, fmt::format("Field '{}' is given twice", field.name));
        }
        bound.columns.push_back(field.name);
        bound.values.push_back(ToType(Bind(*assignment.value), field.type, field.name));
    }
    bound.where = BindCondition(statement.where, "WHERE");
    scope_ = nullptr;
}

} // namespace platform::dialect
