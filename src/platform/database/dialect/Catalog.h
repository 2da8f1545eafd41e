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

    /// The column of this name, without regard to case; null when there is none.
    const Column* Find(std::string_view column) const;
};

/// The tables of one open database, by name without regard to case.
class Catalog {
  public:
    void Add(Table table);
    const Table* Find(std::string_view table) const;
    const std::vector<Table>& Tables() const { return tables_; }

  private:
    std::vector<Table> tables_;
    std::unordered_map<std::string, std::size_t> index_;
};

/// The field type of a declared column type of the schema; text for one it doesn't
/// know. The other way round is the declaration that the schema uses.
FieldType TypeOfDeclaration(std::string_view declared);
std::string_view DeclarationOf(FieldType type);

} // namespace platform::dialect
