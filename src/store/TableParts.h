#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "store/Tables.h"

namespace store {

/// Fields of one kind that follow one another; the names are separated by blanks.
struct FieldRun {
    FieldKind kind;
    std::string_view names;
};

TableDefinition MakeTable(std::string_view name, std::initializer_list<FieldRun> runs,
                          std::initializer_list<std::string_view> indexes = {});

// Returns the tables of the books by area: the property and who lives there, what is paid and owed,
// and what the program itself keeps.
std::vector<TableDefinition> PropertyTables();
std::vector<TableDefinition> PeopleTables();
std::vector<TableDefinition> MoneyTables();
std::vector<TableDefinition> SupportTables();
// Returns the tables that books of earlier versions lack.
std::vector<TableDefinition> LaterTables();

} // namespace store
