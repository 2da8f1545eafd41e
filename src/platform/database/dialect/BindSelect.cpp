#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

constexpr std::size_t kFirstUnnamed = 1000;

/// Stars over several tables can yield the same column name twice, and one would hide the other:
/// each such name gets its table's name as a prefix.
void TellSharedNamesApart(std::vector<BoundItem>& items) {
    std::vector<std::size_t> shared;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool isShared = std::ranges::any_of(items, [&](const BoundItem& other) {
            return !items[i].starOf.empty() && !other.starOf.empty() &&
                   other.starOf != items[i].starOf && other.name.size() == items[i].name.size() &&
                   EqualIgnoringCase(other.name, items[i].name);
        });
        if (isShared) shared.push_back(i);
    }
    for (const std::size_t i : shared)
        items[i].name = fmt::format("{}.{}", items[i].starOf, items[i].name);
}

void NameUnnamed(std::vector<BoundItem>& items) {
    std::size_t unnamed = kFirstUnnamed;
    for (BoundItem& item : items) {
        if (item.name.empty()) item.name = fmt::format("Expr{}", unnamed++);
    }
}

} // namespace

BoundSelect Binder::BindSelect(const Select& select) {
    const RowClause none(*this, {});
    BoundSelect bound;
    bound.distinct = select.distinct;
    bound.top = select.top;
    bound.topIsPercent = select.topIsPercent;
    for (const auto& source : select.from)
        bound.from.push_back(BindSource(*source));
    for (const SelectItem& item : select.items)
        BindItem(item, bound);
    if (scope_->sources.size() > 1) TellSharedNamesApart(bound.items);
    NameUnnamed(bound.items);
    bound.where = BindCondition(select.where, "WHERE");
    for (const ExpressionPtr& expression : select.groupBy) {
        const RowClause group(*this, "GROUP BY");
        bound.groupBy.push_back(Bind(*expression));
    }
    bound.having = BindCondition(select.having, {});
    if (bound.having && bound.groupBy.empty() && !scope_->hasAggregate) {
        Fault(select.having->position, "HAVING needs a group or a sum");
    }
    return bound;
}

void Binder::BindItem(const SelectItem& item, BoundSelect& select) {
    const Expression& expression = *item.expression;
    if (expression.kind == ExpressionKind::Star) return BindStar(expression, select);
    BoundItem bound{Bind(expression), std::string(item.alias), {}};
    if (bound.name.empty() && expression.kind == ExpressionKind::Column) {
        bound.name = expression.text;
    }
    select.items.push_back(std::move(bound));
}

void Binder::BindStar(const Expression& star, BoundSelect& select) {
    bool any = false;
    for (const ScopeSource& source : scope_->sources) {
        if (!star.table.empty() && !EqualIgnoringCase(star.table, source.alias)) continue;
        any = true;
        const auto add = [&](const auto& column, std::string name, std::string_view ofTable,
                             std::string_view ofField) {
            BoundPtr value =
                MakeBound(BoundKind::Column, column.type, std::move(name), star.position);
            value->table = source.alias;
            value->ofTable = ofTable;
            value->ofField = ofField;
            select.items.push_back({std::move(value), column.name, source.alias});
        };
        if (source.table != nullptr) {
            for (const Column& column : source.table->columns)
                add(column, column.name, source.table->name, column.name);
        } else {
            for (std::size_t i = 0; i < source.columns->size(); ++i) {
                const ResultColumn& column = (*source.columns)[i];
                add(column, NumberedName(i + 1), column.table, column.field);
            }
        }
    }
    if (!any) {
        Fault(star.position, star.table.empty()
                                 ? std::string("There is no table to take all fields of")
                                 : fmt::format("Unknown table '{}'", star.table));
    }
}

} // namespace platform::dialect
