#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Catalog.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/database/dialect/Syntax.h"
#include "platform/database/dialect/Typed.h"

namespace platform::dialect {

/// One table or derived table whose columns a name can mean.
struct ScopeSource {
    std::string_view alias;
    /// The table, null for a derived one, which has `columns` instead.
    const Table* table = nullptr;
    std::vector<ResultColumn> columns;
};

/// The names of one SELECT, within those of the queries around it.
struct Scope {
    std::vector<ScopeSource> sources;
    Scope* outer = nullptr;
    bool hasAggregate = false;
};

/// A column list as it was translated, before the types of a union's parts are brought together.
struct TranslatedItem {
    Typed value;
    std::string name;
    /// The table's column, for one that stands by itself.
    std::string source;
    /// The name of the table that a `*` took it from.
    std::string_view starOf;
};

struct TranslatedSelect {
    std::vector<TranslatedItem> items;
    /// Everything behind the column list.
    std::string tail;
    /// The one table that its rows stand for, empty when they stand for none.
    std::string table;
    std::string rowNumber;
};

struct TranslatedQuery {
    std::string sql;
    std::vector<ResultColumn> columns;
    std::string table;
    std::vector<std::string> sources;
};

enum class RowNumber { Omit, Append };

/// Turns a syntax tree into the engine's SQL: resolves its names, types its expressions, converts
/// where types meet.
class Translator {
  public:
    Translator(std::string_view text, const Catalog& catalog, std::size_t parameters)
        : text_(text), catalog_(catalog), parameters_(parameters) {}

    CompiledStatement Translate(const Statement& statement);

    // What the functions' translations are made of.
    Typed Expr(const Expression& expression);
    std::string Condition(const Expression& expression);
    [[noreturn]] void Fault(std::size_t position, std::string_view message) const;
    /// Tells the query around that it sums up rows.
    void NoteAggregate(std::size_t position);

    // An expression as a value of another type. A text that doesn't convert is a fault here where
    // it is a literal, and fails the statement while it runs where it isn't; `field` is named then.
    std::string ToType(const Typed& value, FieldType type, std::string_view field = {});
    std::string ToNumber(const Typed& value);
    std::string ToMoney(const Typed& value, std::string_view field = {});
    std::string ToText(const Typed& value);
    std::string ToDate(const Typed& value);
    std::string ToCondition(const Typed& value);

  private:
    // Statements.
    CompiledStatement TranslateInsert(const Statement& statement);
    CompiledStatement TranslateUpdate(const Statement& statement);
    CompiledStatement TranslateDelete(const Statement& statement);
    const Table& FindTable(std::string_view name, std::size_t position) const;
    const Column& FindColumn(const Table& table, const Assignment& assignment) const;
    std::string Where(const ExpressionPtr& condition);

    // Queries.
    /// With `targets`, the columns are brought to the types of those fields.
    TranslatedQuery TranslateQuery(const Query& query, RowNumber rowNumber,
                                   const std::vector<const Column*>& targets = {});
    void FitTargets(TranslatedQuery& query, const std::vector<const Column*>& targets,
                    std::size_t position) const;
    TranslatedSelect TranslateSelect(const Select& select);
    void TranslateItem(const SelectItem& item, TranslatedSelect& translated);
    void ExpandStar(const Expression& star, TranslatedSelect& translated);
    void AddSources(const Source& source);
    std::string SourceSql(const Source& source);
    void AppendSelect(const Query& query, std::size_t part, const TranslatedSelect& select,
                      RowNumber rowNumber, TranslatedQuery& result);
    std::string Order(const Query& query, const std::vector<ResultColumn>& columns);
    /// The column that an ORDER BY term names, by its number or its name; 0 for none.
    std::size_t OrderPosition(const Expression& expression,
                              const std::vector<ResultColumn>& columns) const;
    std::string OrderTerm(const Expression& expression, const std::vector<ResultColumn>& columns);

    // Expressions.
    Typed TranslateExpression(const Expression& expression);
    Typed NumberLiteral(const Expression& expression);
    Typed DateLiteral(const Expression& expression);
    Typed ColumnReference(const Expression& expression);
    Typed Negate(const Expression& expression);
    Typed Binary(const Expression& expression);
    Typed Chain(const Expression& expression);
    Typed Arithmetic(const Expression& expression, const Typed& left, const Typed& right);
    Typed Add(const Expression& expression, const Typed& left, const Typed& right);
    Typed MoneyArithmetic(const Expression& expression, const Typed& left, const Typed& right);
    Typed Compare(std::string_view symbol, const Typed& left, const Typed& right);
    std::string MoneyOperand(const Typed& value);
    Typed Like(const Expression& expression, const Typed& left, const Typed& right);
    Typed Between(const Expression& expression);
    Typed In(const Expression& expression);
    Typed InQuery(const Expression& expression);
    Typed Subquery(const Expression& expression);
    TranslatedQuery NestedQuery(const Query& query);

    std::string_view text_;
    const Catalog& catalog_;
    std::vector<std::optional<FieldType>> parameters_;
    Scope* scope_ = nullptr;
    int unnamed_ = 1000;
    int depth_ = 0;
};

/// Translates a call of one of the dialect's functions.
Typed TranslateCall(Translator& translator, const Expression& call);

/// The text of a literal without doubled quotes.
std::string LiteralText(const Expression& literal);

} // namespace platform::dialect
