#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/values/Value.h"

namespace platform::dialect {

struct Column {
    std::string name;
    FieldType type = FieldType::Text;
};

struct Table {
    std::string name;
    std::vector<Column> columns;

    /// Returns the column with this name, ignoring case; null if there is none.
    const Column* Find(std::string_view column) const;
};

/// The tables of an open database, found by name ignoring case.
class Catalog {
  public:
    void Add(Table table);
    const Table* Find(std::string_view table) const;
    const std::vector<Table>& Tables() const { return tables_; }

  private:
    std::vector<Table> tables_;
    std::unordered_map<std::string, std::size_t> index_;
};

/// Returns the field type of a column type declared in the schema; text for an unknown one.
/// DeclarationOf returns the declaration that the schema uses for a type.
FieldType TypeOfDeclaration(std::string_view declared);
std::string_view DeclarationOf(FieldType type);

} // namespace platform::dialect
