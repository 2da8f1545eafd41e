#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"
#include "platform/database/dialect/Token.h"

namespace platform::dialect {

namespace {

/// Returns true for a query of a single table that returns its rows unchanged.
bool YieldsRowsOfTable(const BoundQuery& query) {
    const BoundSelect& select = query.selects[0];
    return query.selects.size() == 1 && select.from.size() == 1 &&
           select.from[0]->kind == Source::Kind::Table && !select.distinct &&
           select.groupBy.empty() && !select.having && !select.sumsUp;
}

} // namespace

RowClause::RowClause(Binder& binder, std::string_view clause)
    : binder_(binder), outer_(binder.rowClause_) {
    binder.rowClause_ = clause;
}

void Binder::Fault(std::size_t position, std::string_view message) const {
    ThrowFault(text_, position, message);
}

BoundStatement Binder::Bind(const Statement& statement) {
    BoundStatement bound;
    switch (statement.kind) {
        case Statement::Kind::Select:
            bound.query = BindQuery(*statement.query);
            bound.query->writable = YieldsRowsOfTable(*bound.query);
            break;
        case Statement::Kind::Insert:
            BindInsert(statement, bound);
            break;
        case Statement::Kind::Update:
            BindUpdate(statement, bound);
            break;
        case Statement::Kind::Delete:
            BindDelete(statement, bound);
            break;
    }
    for (const auto& type : parameters_)
        bound.parameters.push_back(type.value_or(FieldType::Text));
    return bound;
}

const Table& Binder::FindTable(std::string_view name, std::size_t position) const {
    const Table* table = catalog_.Find(name);
    if (table == nullptr) Fault(position, fmt::format("Unknown table '{}'", name));
    return *table;
}

const Column& Binder::FindField(const Table& table, const Assignment& assignment) const {
    const bool isOther = !assignment.table.empty() && catalog_.Find(assignment.table) != &table;
    const Column* column = isOther ? nullptr : table.Find(assignment.column);
    if (column == nullptr) {
        Fault(assignment.position,
              fmt::format("Unknown field '{}{}{}' of {}", assignment.table,
                          assignment.table.empty() ? "" : ".", assignment.column, table.name));
    }
    return *column;
}

BoundPtr Binder::BindCondition(const ExpressionPtr& condition, std::string_view clause) {
    if (!condition) return nullptr;
    const RowClause rows(*this, clause);
    return ToCondition(Bind(*condition));
}

} // namespace platform::dialect
