#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/database/dialect/Catalog.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/Syntax.h"
#include "platform/values/Value.h"

namespace platform::dialect {

// The bound tree describes a statement in the engine's terms. Every name refers to a table or
// column, every expression has a type, and type conversions are expressions of their own. Its names
// point into the statement and the catalog, which must outlive it.

struct BoundQuery;

enum class BoundKind : std::uint8_t {
    Number, ///< `text` in the engine's form; booleans and days too
    Text,   ///< `text` is its content
    Null,
    Parameter,
    Column, ///< `table` and `text`
    Prefix, ///< `text` in front of the operand
    Infix,  ///< `text` between the operands: two, or more of AND, OR and ||
    IsNull,
    Between,
    In, ///< true if the first operand is among the others
    InQuery,
    Exists,
    Subquery,
    Call, ///< function `text` of the operands; the star of Count is not an operand
    Cast, ///< to the engine's type `text`
    Case, ///< conditions and values by turns, then the value of ELSE
};

struct BoundExpression {
    BoundKind kind = BoundKind::Null;
    bool negated = false;
    /// A text comparison that ignores case.
    bool ignoresCase = false;
    /// An integer result of arithmetic, which may exceed the range of its type.
    bool isComputed = false;
    /// Not set for NULL, and for a parameter whose type isn't known yet.
    std::optional<FieldType> type;
    /// The number of the parameter, from 0.
    std::size_t parameter = 0;
    /// Offset in the statement, for error messages.
    std::size_t position = 0;
    std::string text;
    /// The name of the column's table in its query.
    std::string_view table;
    /// The table and field that the values come from, also through derived tables.
    std::string_view ofTable;
    std::string_view ofField;
    std::vector<std::unique_ptr<BoundExpression>> operands;
    std::unique_ptr<BoundQuery> query;

    bool Is(FieldType other) const { return type == other; }
    bool IsText() const { return Is(FieldType::Text) || Is(FieldType::Memo); }
    /// Returns true for an integer of 16 or 32 bits.
    bool IsWhole() const { return Is(FieldType::Integer) || Is(FieldType::Long); }
    bool IsNumberLiteral() const {
        return kind == BoundKind::Number && (IsWhole() || Is(FieldType::Double));
    }
    bool IsTextLiteral() const { return kind == BoundKind::Text; }
    /// Returns true if the value is certainly the same for all rows.
    bool IsConstant() const {
        return kind == BoundKind::Number || kind == BoundKind::Text || kind == BoundKind::Null;
    }
};

using BoundPtr = std::unique_ptr<BoundExpression>;

struct BoundItem {
    BoundPtr value;
    std::string name;
    /// The name of the table whose star produced this column.
    std::string_view starOf;
};

struct BoundSource {
    Source::Kind kind = Source::Kind::Table;
    std::string_view table;
    std::string_view alias;
    std::unique_ptr<BoundQuery> query;
    std::unique_ptr<BoundSource> left;
    std::unique_ptr<BoundSource> right;
    BoundPtr on;
};

struct BoundSelect {
    bool distinct = false;
    std::string_view top;
    bool topIsPercent = false;
    std::vector<BoundItem> items;
    std::vector<std::unique_ptr<BoundSource>> from;
    BoundPtr where;
    std::vector<BoundPtr> groupBy;
    BoundPtr having;
    bool sumsUp = false;
};

struct BoundOrder {
    /// The number of the column to sort by, from 1; 0 for an expression.
    std::size_t column = 0;
    BoundPtr value;
    bool descending = false;
};

struct BoundQuery {
    std::vector<BoundSelect> selects;
    std::vector<bool> keepsEqualRows;
    std::vector<ResultColumn> columns;
    std::vector<BoundOrder> orderBy;
    /// True if the rows belong to a single table, so that they can be written back.
    bool writable = false;
};

struct BoundStatement {
    StatementKind kind = StatementKind::Select;
    std::unique_ptr<BoundQuery> query;
    std::string_view table;
    std::vector<std::string_view> columns;
    std::vector<BoundPtr> values;
    BoundPtr where;
    std::vector<FieldType> parameters;
};

/// Returns the name that a derived table's column has in the engine's SQL, counted from 1: two
/// columns may have the same name of their own.
std::string NumberedName(std::size_t column);
/// The name of a derived table without an alias, and of the rows of a union that is sorted by an
/// expression.
inline constexpr std::string_view kUnnamedRows = "Rows";

BoundPtr MakeBound(BoundKind kind, std::optional<FieldType> type, std::string text,
                   std::size_t position);
BoundPtr MakeNumber(std::string text, FieldType type, std::size_t position);
BoundPtr MakeText(std::string text, std::size_t position);

template <typename... Operands>
BoundPtr MakeCall(std::string_view function, std::optional<FieldType> type, Operands... operands) {
    BoundPtr call = MakeBound(BoundKind::Call, type, std::string(function), 0);
    call->operands.reserve(sizeof...(operands));
    (call->operands.push_back(std::move(operands)), ...);
    if (!call->operands.empty()) call->position = call->operands[0]->position;
    return call;
}

/// Returns `left symbol right`. For AND, OR and || the operands of an operand with the same symbol
/// become operands of the new expression.
BoundPtr MakeInfix(std::string_view symbol, FieldType type, BoundPtr left, BoundPtr right);
BoundPtr MakePrefix(std::string_view symbol, FieldType type, BoundPtr operand);

/// Returns the type that all these values can be converted to; nothing if none of them has a type.
std::optional<FieldType> CommonType(std::span<const BoundExpression* const> values);

} // namespace platform::dialect
