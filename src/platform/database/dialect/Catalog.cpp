#include "platform/database/dialect/Catalog.h"

#include <array>
#include <utility>

#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

// The engine takes a column's affinity from its declaration, so each declaration is chosen to keep
// values as they are stored: a memo that holds "007" must stay text.
constexpr std::array<std::pair<FieldType, std::string_view>, 7> kDeclarations = {{
    {FieldType::Integer, "SMALLINT"},
    {FieldType::Long, "INTEGER"},
    {FieldType::Double, "DOUBLE"},
    {FieldType::Currency, "CURRENCY"},
    {FieldType::Boolean, "BOOLEAN"},
    {FieldType::Text, "TEXT"},
    {FieldType::Memo, "MEMO TEXT"},
}};

} // namespace

const Column* Table::Find(std::string_view column) const {
    for (const Column& candidate : columns) {
        if (candidate.name.size() == column.size() && EqualIgnoringCase(candidate.name, column)) {
            return &candidate;
        }
    }
    return nullptr;
}

void Catalog::Add(Table table) {
    index_[ToLower(table.name)] = tables_.size();
    tables_.push_back(std::move(table));
}

const Table* Catalog::Find(std::string_view table) const {
    const auto found = index_.find(ToLower(table));
    return found == index_.end() ? nullptr : &tables_[found->second];
}

FieldType TypeOfDeclaration(std::string_view declared) {
    for (const auto& [type, declaration] : kDeclarations) {
        if (EqualIgnoringCase(declared, declaration)) return type;
    }
    return FieldType::Text;
}

std::string_view DeclarationOf(FieldType type) {
    for (const auto& [candidate, declaration] : kDeclarations) {
        if (candidate == type) return declaration;
    }
    return "TEXT";
}

} // namespace platform::dialect
