#include <algorithm>
#include <charconv>

#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"
#include "platform/values/Text.h"

namespace platform::dialect {

std::unique_ptr<BoundQuery> Binder::BindQuery(const Query& query, Targets targets) {
    auto bound = std::make_unique<BoundQuery>();
    bound->keepsEqualRows = query.keepsEqualRows;
    Scope* const outer = scope_;
    Scope scope;
    for (const Select& select : query.selects) {
        scope = {};
        scope.outer = outer;
        scope_ = &scope;
        bound->selects.push_back(BindSelect(select));
        if (bound->selects.back().items.size() != bound->selects[0].items.size()) {
            Fault(select.position, "All parts of a UNION must have the same number of columns");
        }
    }
    if (targets.empty()) {
        BindUnion(*bound);
    } else {
        BindTargets(*bound, targets, query.selects[0].position);
    }
    if (bound->selects.size() > 1) {
        // After a union only its columns have names; the names of its tables are no longer known.
        scope.sources = {{kUnnamedRows, nullptr, &bound->columns}};
    }
    BindOrder(query, *bound);
    bound->selects.back().sumsUp = scope.hasAggregate;
    scope_ = outer;
    return bound;
}

void Binder::BindUnion(BoundQuery& query) {
    std::vector<const BoundExpression*> values(query.selects.size());
    for (std::size_t column = 0; column < query.selects[0].items.size(); ++column) {
        for (std::size_t i = 0; i < values.size(); ++i) {
            values[i] = query.selects[i].items[column].value.get();
        }
        const FieldType type = CommonType(values).value_or(FieldType::Text);
        for (BoundSelect& select : query.selects) {
            BoundPtr& value = select.items[column].value;
            value = ToType(std::move(value), type);
        }
        ResultColumn result{query.selects[0].items[column].name, type};
        const BoundExpression& first = *query.selects[0].items[column].value;
        const bool areOneField = std::ranges::all_of(query.selects, [&](const BoundSelect& select) {
            const BoundExpression& value = *select.items[column].value;
            return value.ofTable == first.ofTable && value.ofField == first.ofField;
        });
        if (areOneField) {
            result.table = first.ofTable;
            result.field = first.ofField;
        }
        query.columns.push_back(std::move(result));
    }
}

void Binder::BindTargets(BoundQuery& query, Targets targets, std::size_t position) {
    const std::size_t count = query.selects[0].items.size();
    if (count != targets.size()) {
        Fault(position, fmt::format("{} columns for {} fields", count, targets.size()));
    }
    for (std::size_t column = 0; column < count; ++column) {
        const Column& field = *targets[column];
        for (BoundSelect& select : query.selects) {
            BoundPtr& value = select.items[column].value;
            value = ToType(std::move(value), field.type, field.name);
        }
        query.columns.push_back({query.selects[0].items[column].name, field.type});
    }
}

void Binder::BindOrder(const Query& query, BoundQuery& bound) {
    const bool sumsUp =
        bound.selects.size() == 1 && (scope_->hasAggregate || !bound.selects[0].groupBy.empty());
    const RowClause clause(*this, sumsUp ? "" : "ORDER BY");
    for (const OrderItem& item : query.orderBy) {
        BoundOrder order;
        order.descending = item.descending;
        order.column = OrderColumn(*item.expression, bound);
        if (order.column == 0) order.value = Bind(*item.expression);
        bound.orderBy.push_back(std::move(order));
    }
}

std::size_t Binder::OrderColumn(const Expression& expression, const BoundQuery& query) const {
    if (expression.kind == ExpressionKind::Number) {
        std::size_t position = 0;
        const char* const begin = expression.text.data();
        const char* const end = begin + expression.text.size();
        const auto read = std::from_chars(begin, end, position);
        if (read.ptr != end || position < 1 || position > query.columns.size()) {
            Fault(expression.position, fmt::format("There is no column {}", expression.text));
        }
        return position;
    }
    if (expression.kind != ExpressionKind::Column || !expression.table.empty()) return 0;
    const auto found = std::ranges::find_if(query.columns, [&](const ResultColumn& column) {
        return column.name.size() == expression.text.size() &&
               EqualIgnoringCase(column.name, expression.text);
    });
    return found == query.columns.end()
               ? 0
               : static_cast<std::size_t>(found - query.columns.begin()) + 1;
}

std::unique_ptr<BoundQuery> Binder::BindColumnQuery(const Expression& expression) {
    std::unique_ptr<BoundQuery> query = BindQuery(*expression.query);
    if (query->columns.size() != 1) {
        Fault(expression.position, "A query used as a value must have one column");
    }
    return query;
}

} // namespace platform::dialect
