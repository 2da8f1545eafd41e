#include "platform/database/dialect/Binder.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/Emitter.h"

namespace platform::dialect {

namespace {

/// Returns for each result column the table's field that it shows; empty for a computed column.
std::vector<std::string> SourcesOf(const BoundSelect& select) {
    std::vector<std::string> sources;
    sources.reserve(select.items.size());
    for (const BoundItem& item : select.items) {
        const bool isField = item.value->kind == BoundKind::Column;
        sources.push_back(isField ? item.value->text : std::string());
    }
    return sources;
}

} // namespace

CompiledStatement Compile(std::string_view text, const Catalog& catalog) {
    const Statement statement = Parse(text);
    BoundStatement bound = Binder(text, catalog, statement.parameters).Bind(statement);
    CompiledStatement compiled;
    compiled.kind = bound.kind;
    compiled.sql = Emitter().Emit(bound);
    compiled.parameters = std::move(bound.parameters);
    if (bound.kind != StatementKind::Select) return compiled;
    if (bound.query->writable) {
        compiled.table = bound.query->selects[0].from[0]->table;
        compiled.sources = SourcesOf(bound.query->selects[0]);
    }
    compiled.columns = std::move(bound.query->columns);
    return compiled;
}

} // namespace platform::dialect
