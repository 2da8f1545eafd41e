#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

void Binder::BindInsert(const Statement& statement, BoundStatement& bound) {
    const Table& table = FindTable(statement.table, statement.tablePosition);
    std::vector<const Column*> fields;
    const bool named = !statement.assignments.empty() && !statement.assignments[0].column.empty();
    if (named) {
        for (const Assignment& assignment : statement.assignments) {
            const Column& field = FindField(table, assignment);
            if (std::ranges::find(fields, &field) != fields.end()) {
                Fault(assignment.position, fmt::format("Field '{}' is given twice", field.name));
            }
            fields.push_back(&field);
        }
    } else {
        for (const Column& column : table.columns)
            fields.push_back(&column);
    }

    bound.kind = StatementKind::Insert;
    bound.table = table.name;
    for (const Column* field : fields)
        bound.columns.push_back(field->name);
    if (statement.query) {
        bound.query = BindQuery(*statement.query, fields);
        return;
    }
    if (statement.assignments.size() != fields.size()) {
        Fault(statement.tablePosition,
              fmt::format("{} values for {} fields", statement.assignments.size(), fields.size()));
    }
    const RowClause values(*this, "VALUES");
    for (std::size_t i = 0; i < fields.size(); ++i) {
        bound.values.push_back(
            ToType(Bind(*statement.assignments[i].value), fields[i]->type, fields[i]->name));
    }
}

} // namespace platform::dialect
