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
    /// The table and field whose values the column shows unchanged; empty for a computed column.
    std::string table = {};
    std::string field = {};
};

/// A dialect statement translated to the engine's SQL.
struct CompiledStatement {
    StatementKind kind = StatementKind::Select;
    std::string sql;
    /// The result columns of a select, in order.
    std::vector<ResultColumn> columns;
    /// The type of each `?` in order; bound values are converted to it.
    std::vector<FieldType> parameters;
    /// The table that the rows of a select belong to; empty if they can't be written back (a join,
    /// a grouping, DISTINCT, UNION). If it is set, the engine's statement returns the row's number
    /// as an additional last column, and `sources[i]` is the field that result column i shows
    /// (empty for a computed one).
    std::string table;
    std::vector<std::string> sources;
};

/// Compiles one statement (a final ';' is allowed) against the tables of `catalog`. Throws
/// DialectError, whose message names the fault and its place. The engine's SQL computes with
/// stored forms: money as an integer scaled by 10,000, booleans as 0 and 1, computed dates as day
/// numbers since 12/30/1899 (`Now` with a fraction), stored dates as text.
CompiledStatement Compile(std::string_view text, const Catalog& catalog);

/// Returns text as a quoted dialect literal with its apostrophes doubled, for statements that the
/// program composes.
std::string QuoteText(std::string_view text);
/// Returns a name in square brackets.
std::string QuoteName(std::string_view name);
/// Returns a day as a #mm/dd/yyyy# literal.
std::string QuoteDate(Date date);

} // namespace platform::dialect
