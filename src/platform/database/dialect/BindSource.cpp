#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Binder.h"
#include "platform/values/Text.h"

namespace platform::dialect {

std::unique_ptr<BoundSource> Binder::BindSource(const Source& source) {
    auto bound = std::make_unique<BoundSource>();
    bound->kind = source.kind;
    switch (source.kind) {
        case Source::Kind::Table:
            BindTable(source, *bound);
            break;
        case Source::Kind::Derived: {
            // A derived table can't see the tables beside it.
            Scope* const own = scope_;
            scope_ = own->outer;
            bound->query = BindQuery(*source.query);
            scope_ = own;
            bound->alias = source.alias.empty() ? kUnnamedRows : source.alias;
            AddToScope({bound->alias, nullptr, &bound->query->columns}, source.position);
            break;
        }
        case Source::Kind::Inner:
        case Source::Kind::Left:
        case Source::Kind::Right: {
            const std::size_t before = scope_->sources.size();
            bound->left = BindSource(*source.left);
            bound->right = BindSource(*source.right);
            const std::size_t first = std::exchange(scope_->first, before);
            bound->on = BindCondition(source.on, "ON");
            scope_->first = first;
            break;
        }
    }
    return bound;
}

void Binder::BindTable(const Source& source, BoundSource& bound) {
    const Table& table = FindTable(source.table, source.position);
    bound.table = table.name;
    bound.alias = source.alias.empty() ? std::string_view(table.name) : source.alias;
    AddToScope({bound.alias, &table, nullptr}, source.position);
}

void Binder::AddToScope(const ScopeSource& source, std::size_t position) {
    const bool known = std::ranges::any_of(scope_->sources, [&](const ScopeSource& other) {
        return EqualIgnoringCase(other.alias, source.alias);
    });
    if (known) Fault(position, fmt::format("'{}' appears twice in FROM", source.alias));
    scope_->sources.push_back(source);
}

} // namespace platform::dialect
