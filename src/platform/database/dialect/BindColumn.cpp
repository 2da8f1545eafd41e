#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"
#include "platform/values/Text.h"

namespace platform::dialect {

BoundPtr Binder::BindColumn(const Expression& expression) const {
    for (const Scope* scope = scope_; scope != nullptr; scope = scope->outer) {
        BoundPtr found;
        for (std::size_t i = scope->first; i < scope->sources.size(); ++i) {
            BoundPtr column = FindColumn(scope->sources[i], expression);
            if (!column) continue;
            if (found) {
                Fault(expression.position,
                      fmt::format("Field '{}' is in more than one table", expression.text));
            }
            found = std::move(column);
        }
        if (found) return found;
    }
    Fault(expression.position, fmt::format("Unknown field '{}{}{}'", expression.table,
                                           expression.table.empty() ? "" : ".", expression.text));
}

BoundPtr Binder::FindColumn(const ScopeSource& source, const Expression& expression) const {
    if (!expression.table.empty() && !EqualIgnoringCase(expression.table, source.alias)) {
        return nullptr;
    }
    BoundPtr found;
    if (source.table != nullptr) {
        if (const Column* column = source.table->Find(expression.text)) {
            found = MakeBound(BoundKind::Column, column->type, column->name, expression.position);
            found->ofTable = source.table->name;
            found->ofField = column->name;
        }
    } else {
        for (std::size_t i = 0; i < source.columns->size() && !found; ++i) {
            const ResultColumn& column = (*source.columns)[i];
            if (!EqualIgnoringCase(column.name, expression.text)) continue;
            found =
                MakeBound(BoundKind::Column, column.type, NumberedName(i + 1), expression.position);
            found->ofTable = column.table;
            found->ofField = column.field;
        }
    }
    if (found) found->table = source.alias;
    return found;
}

BoundPtr Binder::RowNumber() const {
    if (scope_ == nullptr || scope_->sources.size() != 1 || scope_->sources[0].table == nullptr) {
        return MakeNumber("0", FieldType::Long, 0);
    }
    BoundPtr number = MakeBound(BoundKind::Column, FieldType::Long, "rowid", 0);
    number->table = scope_->sources[0].alias;
    return number;
}

} // namespace platform::dialect
