#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform::dialect {

// The syntax tree of a statement. Its texts point into the statement, which must outlive it.

struct Query;

enum class ExpressionKind : std::uint8_t {
    Number,
    Text,
    Date,
    Boolean,
    Null,
    Parameter,
    Column,
    Star,     ///< `*` or `Table.*`, in a column list and in Count
    Function, ///< a call; `text` is the function's name
    Negate,
    Not,
    Binary, ///< `text` is the operator, in capitals if it is a word
    IsNull,
    Between,
    In,
    InQuery,
    Exists,
    Subquery,
};

struct Expression {
    ExpressionKind kind = ExpressionKind::Null;
    /// IS NOT NULL, NOT IN, NOT BETWEEN, NOT LIKE.
    bool negated = false;
    /// The quote character of a text literal.
    char quote = '\0';
    /// The number of the parameter, from 0.
    std::size_t parameter = 0;
    /// Offset in the statement, for error messages.
    std::size_t position = 0;
    /// The literal, name or operator.
    std::string_view text;
    /// The table before a column or star; empty if there is none.
    std::string_view table;
    /// Two operands for a binary operator; AND, OR and & have all operands of a row.
    std::vector<std::unique_ptr<Expression>> operands;
    std::unique_ptr<Query> query;
};

using ExpressionPtr = std::unique_ptr<Expression>;

struct SelectItem {
    ExpressionPtr expression;
    std::string_view alias;
};

/// A source of rows: a table, a derived table, or a join of two sources.
struct Source {
    enum class Kind : std::uint8_t { Table, Derived, Inner, Left, Right };

    Kind kind = Kind::Table;
    std::size_t position = 0;
    std::string_view table;
    /// Empty if there is none.
    std::string_view alias;
    std::unique_ptr<Query> query;
    std::unique_ptr<Source> left;
    std::unique_ptr<Source> right;
    ExpressionPtr on;
};

/// One SELECT of a union.
struct Select {
    std::size_t position = 0;
    bool distinct = false;
    /// The number after TOP; empty if there is none.
    std::string_view top;
    bool topIsPercent = false;
    std::vector<SelectItem> items;
    std::vector<std::unique_ptr<Source>> from;
    ExpressionPtr where;
    std::vector<ExpressionPtr> groupBy;
    ExpressionPtr having;
};

struct OrderItem {
    ExpressionPtr expression;
    bool descending = false;
};

struct Query {
    std::vector<Select> selects;
    /// Whether duplicate rows are kept between select i and i + 1 (UNION ALL).
    std::vector<bool> keepsEqualRows;
    std::vector<OrderItem> orderBy;
};

struct Assignment {
    std::string_view column;
    /// The table before the field; empty if there is none.
    std::string_view table;
    std::size_t position = 0;
    ExpressionPtr value;
};

struct Statement {
    enum class Kind : std::uint8_t { Select, Insert, Update, Delete };

    Kind kind = Kind::Select;
    /// The query of a SELECT, or of an INSERT ... SELECT.
    std::unique_ptr<Query> query;
    // For the other statements: the table, the assigned fields with their values, and the
    // condition.
    std::string_view table;
    std::size_t tablePosition = 0;
    std::vector<Assignment> assignments;
    ExpressionPtr where;

    std::size_t parameters = 0;
};

/// Parses one statement; a final ';' is allowed. Throws DialectError with what was expected, and
/// where.
Statement Parse(std::string_view text);

/// Returns the value of a text literal, with doubled quotes made single.
std::string LiteralText(const Expression& literal);

// Return a node as dialect text that parses to the same tree: keywords in capitals, every nested
// operator in parentheses.
std::string Print(const Statement& statement);
void Print(std::string& out, const Query& query);
void Print(std::string& out, const Source& source);
void Print(std::string& out, const Expression& expression);

} // namespace platform::dialect
