#include <fmt/format.h>

#include "platform/database/dialect/Emitter.h"
#include "platform/database/dialect/EngineSql.h"

namespace platform::dialect {

namespace {

bool IsText(FieldType type) {
    return type == FieldType::Text || type == FieldType::Memo;
}

/// Returns whether a query must be wrapped in another: the engine can sort a union only by its
/// columns.
bool NeedsRowsAround(const BoundQuery& query) {
    if (query.selects.size() == 1) return false;
    for (const BoundOrder& order : query.orderBy) {
        if (order.column == 0) return true;
    }
    return false;
}

} // namespace

void Emitter::EmitNested(const BoundQuery& query, ColumnNames names) {
    sql_ += '(';
    EmitQuery(query, names);
    sql_ += ')';
}

void Emitter::EmitQuery(const BoundQuery& query, ColumnNames names) {
    const bool around = NeedsRowsAround(query);
    if (around) {
        names = ColumnNames::Numbered;
        sql_ += "SELECT * FROM (";
    }
    if (query.selects.size() == 1) {
        EmitSelect(query.selects[0], query, names);
    } else {
        for (std::size_t i = 0; i < query.selects.size(); ++i) {
            if (i > 0) sql_ += query.keepsEqualRows[i - 1] ? " UNION ALL " : " UNION ";
            EmitUnionPart(query.selects[i], query, names);
        }
    }
    if (around) {
        sql_ += ") AS ";
        sql_ += EngineName(kUnnamedRows);
    }
    EmitOrder(query);
    if (query.selects.size() == 1) EmitTop(query.selects[0], query);
}

void Emitter::EmitUnionPart(const BoundSelect& select, const BoundQuery& query, ColumnNames names) {
    // The engine accepts a LIMIT only for a whole union.
    const bool limited = !select.top.empty();
    if (limited) sql_ += "SELECT * FROM (";
    EmitSelect(select, query, names);
    if (!limited) return;
    EmitTop(select, query);
    sql_ += ')';
}

void Emitter::EmitSelect(const BoundSelect& select, const BoundQuery& query, ColumnNames names) {
    sql_ += select.distinct ? "SELECT DISTINCT " : "SELECT ";
    EmitItems(select, query, names);
    EmitFrom(select);
    EmitClause(" WHERE ", select.where);
    EmitGroup(select);
    EmitClause(" HAVING ", select.having);
}

void Emitter::EmitItems(const BoundSelect& select, const BoundQuery& query, ColumnNames names) {
    const bool comparesRows = select.distinct || query.selects.size() > 1;
    for (std::size_t i = 0; i < select.items.size(); ++i) {
        if (i > 0) sql_ += ", ";
        EmitCompared(*select.items[i].value, Binding::Or,
                     comparesRows && IsText(query.columns[i].type));
        if (names == ColumnNames::Numbered) {
            sql_ += " AS ";
            sql_ += EngineName(NumberedName(i + 1));
        }
    }
    if (query.writable) {
        sql_ += ", ";
        sql_ += EngineName(select.from[0]->alias);
        sql_ += ".rowid";
    }
}

void Emitter::EmitGroup(const BoundSelect& select) {
    std::string_view separator = " GROUP BY ";
    for (const BoundPtr& group : select.groupBy) {
        sql_ += separator;
        EmitTerm(*group);
        separator = ", ";
    }
}

void Emitter::EmitOrder(const BoundQuery& query) {
    std::string_view separator = " ORDER BY ";
    for (const BoundOrder& order : query.orderBy) {
        sql_ += separator;
        if (order.column == 0) {
            EmitTerm(*order.value);
        } else {
            fmt::format_to(std::back_inserter(sql_), "{}", order.column);
            if (IsText(query.columns[order.column - 1].type)) sql_ += kTextCollation;
        }
        if (order.descending) sql_ += " DESC";
        separator = ", ";
    }
}

void Emitter::EmitTop(const BoundSelect& select, const BoundQuery& query) {
    if (select.top.empty()) return;
    if (!select.topIsPercent) {
        sql_.append(" LIMIT ").append(select.top);
        return;
    }
    fmt::format_to(std::back_inserter(sql_), " LIMIT (SELECT (COUNT(*) * {} + 99) / 100 FROM (",
                   select.top);
    EmitSelect(select, query, ColumnNames::Own);
    sql_ += "))";
}

void Emitter::EmitTerm(const BoundExpression& expression) {
    if (expression.IsConstant()) {
        sql_ += "NULL";
    } else {
        EmitCompared(expression, Binding::Or, expression.IsText());
    }
}

void Emitter::EmitClause(std::string_view word, const BoundPtr& condition) {
    if (!condition) return;
    sql_ += word;
    Emit(*condition);
}

} // namespace platform::dialect
