#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace store {

/// The kinds of values that a field of the schema holds.
enum class FieldKind {
    Long,    ///< 32 bits; 0, never null, if nothing is linked
    Counter, ///< a Long that may be null: nothing was counted yet
    Integer, ///< 16 bits
    Double,
    Currency,
    Boolean,
    Text,
    Memo,
    DateText, ///< "mm/dd/yyyy"; empty or null if no day is set
};

struct FieldDefinition {
    std::string name;
    FieldKind kind;
};

/// A table with its fields in order. Each index names its columns, separated by blanks; none is
/// unique.
struct TableDefinition {
    std::string name;
    std::vector<FieldDefinition> fields;
    std::vector<std::string> indexes;
};

/// Returns every table of the books.
const std::vector<TableDefinition>& BooksTables();

/// Returns the tables that the books of earlier versions lack: for money that was paid ahead or was
/// returned, for rows of the run that were taken back, and for further settings. Books that never
/// use them keep them empty.
const std::vector<TableDefinition>& AddedTables();

/// Returns the tables of the reference database: zip codes and the pages of the tax offices.
const std::vector<TableDefinition>& ReferenceTables();

/// Returns the type that the schema declares a field of this kind with.
std::string_view DeclaredType(FieldKind kind);

/// Returns the statements that make these tables and their indexes, in the engine's own SQL.
std::string SchemaScript(const std::vector<TableDefinition>& tables);

} // namespace store
