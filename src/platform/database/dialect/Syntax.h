#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform::dialect {

// The syntax tree of a statement. Its texts are pieces of the statement's own, which must outlive
// it.

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
    Binary, ///< `text` is the operator, in capitals where it is a word
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
    /// The quote of a text.
    char quote = '\0';
    /// 0-based number of a parameter.
    std::size_t parameter = 0;
    /// Offset in the statement, for messages.
    std::size_t position = 0;
    /// The literal, the name or the operator.
    std::string_view text;
    /// The table in front of a column or star, empty without one.
    std::string_view table;
    /// Two for a binary operator; for AND, OR and & all in a sequence.
    std::vector<std::unique_ptr<Expression>> operands;
    std::unique_ptr<Query> query;
};

using ExpressionPtr = std::unique_ptr<Expression>;

struct SelectItem {
    ExpressionPtr expression;
    std::string_view alias;
};

/// What rows come from: a table, a derived table, or a join of two of them.
struct Source {
    enum class Kind : std::uint8_t { Table, Derived, Inner, Left, Right };

    Kind kind = Kind::Table;
    std::size_t position = 0;
    std::string_view table;
    /// Empty without one.
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
    /// TOP; empty without one.
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
    /// Between select i and i + 1: whether equal rows stay (UNION ALL).
    std::vector<bool> keepsEqualRows;
    std::vector<OrderItem> orderBy;
};

struct Assignment {
    std::string_view column;
    /// The table in front of it, empty without one.
    std::string_view table;
    std::size_t position = 0;
    ExpressionPtr value;
};

struct Statement {
    enum class Kind : std::uint8_t { Select, Insert, Update, Delete };

    Kind kind = Kind::Select;
    /// A select's, and the rows of an INSERT that takes them from one.
    std::unique_ptr<Query> query;
    // Of the other kinds: the table, the fields written with their values, and the condition.
    std::string_view table;
    std::size_t tablePosition = 0;
    std::vector<Assignment> assignments;
    ExpressionPtr where;

    std::size_t parameters = 0;
};

/// Reads one statement; a final ';' may follow. Throws DialectError: what was expected, and where.
Statement Parse(std::string_view text);

/// The text of a text literal, its doubled quotes made single.
std::string LiteralText(const Expression& literal);

// Each node as text of the dialect that reads back as the same tree: words in capitals, every
// operator inside another in parentheses.
std::string Print(const Statement& statement);
void Print(std::string& out, const Query& query);
void Print(std::string& out, const Source& source);
void Print(std::string& out, const Expression& expression);

} // namespace platform::dialect
