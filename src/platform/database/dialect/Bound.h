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

// The bound tree: what a statement means to the engine. Every name is a table's or a column's,
// every expression has its type, and conversions between types are expressions of their own. Its
// names are pieces of the statement and of the catalog, which must outlive it.

struct BoundQuery;

enum class BoundKind : std::uint8_t {
    Number, ///< `text` in the engine's form; booleans and days too
    Text,   ///< `text` what it says
    Null,
    Parameter,
    Column, ///< `table` and `text`
    Prefix, ///< `text` in front of the operand
    Infix,  ///< `text` between the operands: two, or more of AND, OR and ||
    IsNull,
    Between,
    In, ///< the first operand among the others
    InQuery,
    Exists,
    Subquery,
    Call, ///< function `text` of the operands; the star of Count is not an operand
    Cast, ///< to the engine's type `text`
    Case, ///< conditions and values by turns, then what else
};

struct BoundExpression {
    BoundKind kind = BoundKind::Null;
    bool negated = false;
    /// A comparison of texts without regard to case.
    bool ignoresCase = false;
    /// Whole numbers that were reckoned with may have outgrown their type.
    bool isReckoned = false;
    /// None for NULL, and for a parameter whose type isn't known yet.
    std::optional<FieldType> type;
    /// 0-based number of a parameter.
    std::size_t parameter = 0;
    /// Offset in the statement, for messages.
    std::size_t position = 0;
    std::string text;
    /// The name of a column's table in its query.
    std::string_view table;
    /// The table and field that a column's values come from, also through other queries.
    std::string_view ofTable;
    std::string_view ofField;
    std::vector<std::unique_ptr<BoundExpression>> operands;
    std::unique_ptr<BoundQuery> query;

    bool Is(FieldType other) const { return type == other; }
    bool IsText() const { return Is(FieldType::Text) || Is(FieldType::Memo); }
    /// A whole number: of 16 or 32 bits.
    bool IsWhole() const { return Is(FieldType::Integer) || Is(FieldType::Long); }
    bool IsNumberLiteral() const {
        return kind == BoundKind::Number && (IsWhole() || Is(FieldType::Double));
    }
    bool IsTextLiteral() const { return kind == BoundKind::Text; }
    /// The same for all rows, as far as one sees.
    bool IsConstant() const {
        return kind == BoundKind::Number || kind == BoundKind::Text || kind == BoundKind::Null;
    }
};

using BoundPtr = std::unique_ptr<BoundExpression>;

struct BoundItem {
    BoundPtr value;
    std::string name;
    /// The name of the table that a star took it from.
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
    /// The column that it names, counted from 1; 0 for an expression.
    std::size_t column = 0;
    BoundPtr value;
    bool descending = false;
};

struct BoundQuery {
    std::vector<BoundSelect> selects;
    std::vector<bool> keepsEqualRows;
    std::vector<ResultColumn> columns;
    std::vector<BoundOrder> orderBy;
    /// Whether its rows belong to its one table, so that they can be written back.
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

/// What the columns of a derived table are called by the engine, counted from 1: their own names
/// may appear twice.
std::string NumberedName(std::size_t column);
/// What a derived table without a name is called, and the rows of a union where an expression
/// orders them.
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

/// `symbol` between two operands; operands that are rows of AND, OR or || go on in the new one.
BoundPtr MakeInfix(std::string_view symbol, FieldType type, BoundPtr left, BoundPtr right);
BoundPtr MakePrefix(std::string_view symbol, FieldType type, BoundPtr operand);

/// The type that all these values can be brought to: none where none has one.
std::optional<FieldType> CommonType(std::span<const BoundExpression* const> values);

} // namespace platform::dialect
