#include <fmt/core.h>

#include "platform/database/dialect/EngineSql.h"
#include "platform/database/dialect/Translator.h"
#include "platform/values/Text.h"

namespace platform::dialect {

void Translator::AddSources(const Source& source) {
    switch (source.kind) {
        case Source::Kind::Table: {
            const Table& table = FindTable(source.table, source.position);
            for (const ScopeSource& other : scope_->sources) {
                if (EqualIgnoringCase(other.alias, source.alias)) {
                    Fault(source.position, fmt::format("'{}' stands in FROM twice", source.alias));
                }
            }
            scope_->sources.push_back({source.alias, &table, {}});
            break;
        }
        case Source::Kind::Derived: {
            // What it yields is known once it has been translated.
            scope_->sources.push_back({source.alias, nullptr, {}});
            break;
        }
        case Source::Kind::Inner:
        case Source::Kind::Left:
        case Source::Kind::Right:
            AddSources(*source.left);
            AddSources(*source.right);
            break;
    }
}

std::string Translator::SourceSql(const Source& source) {
    std::string_view join;
    switch (source.kind) {
        case Source::Kind::Table: {
            return EngineName(FindTable(source.table, source.position).name) + " AS " +
                   EngineName(source.alias);
        }
        case Source::Kind::Derived: {
            TranslatedQuery query = NestedQuery(*source.query);
            for (ScopeSource& entry : scope_->sources) {
                if (entry.table == nullptr && entry.alias == source.alias) {
                    entry.columns = std::move(query.columns);
                }
            }
            return fmt::format("({}) AS {}", query.sql, EngineName(source.alias));
        }
        case Source::Kind::Inner:
            join = " INNER JOIN ";
            break;
        case Source::Kind::Left:
            join = " LEFT JOIN ";
            break;
        case Source::Kind::Right:
            join = " RIGHT JOIN ";
            break;
    }
    // Joins bind to the left by themselves, so only a join on the right side needs its parentheses.
    std::string sql = SourceSql(*source.left);
    const bool nested =
        source.right->kind != Source::Kind::Table && source.right->kind != Source::Kind::Derived;
    const std::string right = SourceSql(*source.right);
    sql += join;
    sql += nested ? "(" + right + ")" : right;
    sql += " ON " + Condition(*source.on);
    return sql;
}

const Table& Translator::FindTable(std::string_view name, std::size_t position) const {
    const Table* table = catalog_.Find(name);
    if (table == nullptr) Fault(position, fmt::format("Unknown table '{}'", name));
    return *table;
}

} // namespace platform::dialect
