#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Catalog.h"
#include "platform/values/Value.h"

namespace platform::dialect {

enum class StatementKind { Select, Insert, Update, Delete };

struct ResultColumn {
    std::string name;
    FieldType type = FieldType::Text;
    /// The table and field whose values it shows as they are; empty for a computed column.
    std::string table = {};
    std::string field = {};
};

/// A statement of the dialect in the engine's SQL.
struct CompiledStatement {
    StatementKind kind = StatementKind::Select;
    std::string sql;
    /// A select's result columns, in order.
    std::vector<ResultColumn> columns;
    /// For each `?` in order: the type that its place asks for, which a bound value is converted
    /// to.
    std::vector<FieldType> parameters;
    /// The one table that the rows of a select belong to, empty if they can't be written back (a
    /// join, a grouping, DISTINCT, UNION). Then the engine's statement yields the row's number as a
    /// further, last column, and `sources[i]` names the table's column of result column i
    /// (empty for a computed one).
    std::string table;
    std::vector<std::string> sources;
};

/// Compiles one statement (a final ';' may follow it) against the tables of `catalog`.
/// Throws DialectError, which says what is wrong and where.
///
/// Stored forms that the engine's SQL reckons with: money scaled by 10,000 as an integer, booleans
/// 0 and 1, computed dates as day numbers since 12/30/1899 (`Now` with a fraction), stored dates as
/// text.
CompiledStatement Compile(std::string_view text, const Catalog& catalog);

/// A text as a literal of the dialect, quotes and doubled apostrophes included: for statements that
/// the program composes.
std::string QuoteText(std::string_view text);
/// A name in square brackets.
std::string QuoteName(std::string_view name);
/// A day as a #mm/dd/yyyy# literal.
std::string QuoteDate(Date date);

} // namespace platform::dialect
