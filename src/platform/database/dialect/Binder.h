#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Bound.h"
#include "platform/database/dialect/Catalog.h"
#include "platform/database/dialect/Syntax.h"

namespace platform::dialect {

/// A table or derived table whose columns a name can refer to.
struct ScopeSource {
    std::string_view alias;
    /// The table; null for a derived table, which has `columns` instead.
    const Table* table = nullptr;
    const std::vector<ResultColumn>* columns = nullptr;
};

/// The names that one SELECT can use; `outer` has the names of the enclosing query.
struct Scope {
    std::vector<ScopeSource> sources;
    /// The index of the first source that names can refer to: an ON clause can't use the tables
    /// before its join.
    std::size_t first = 0;
    Scope* outer = nullptr;
    bool hasAggregate = false;
};

/// The type by which values are compared with each other.
enum class Domain { Text, Number, Money, Date, Boolean };

/// Resolves the names of a syntax tree, assigns a type to each expression, and inserts conversions
/// where types differ.
class Binder {
  public:
    Binder(std::string_view text, const Catalog& catalog, std::size_t parameters)
        : text_(text), catalog_(catalog), parameters_(parameters) {}

    BoundStatement Bind(const Statement& statement);

    // The functions' own binding code uses these.
    BoundPtr Bind(const Expression& expression);
    [[noreturn]] void Fault(std::size_t position, std::string_view message) const;
    /// Returns the number of the row that a value comes from; only for a query of one table.
    BoundPtr RowNumber() const;

    // Converts an expression to a type. Throws DialectError for a literal that can't be converted;
    // any other text that can't be converted fails the statement while it runs. `field` names the
    // field that will hold the value, if there is one.
    BoundPtr ToType(BoundPtr value, FieldType type, std::string_view field = {});
    /// Converts to any numeric type; integers stay integers.
    BoundPtr ToNumber(BoundPtr value, std::string_view field = {});
    BoundPtr ToReal(BoundPtr value, std::string_view field = {});
    BoundPtr ToWhole(BoundPtr value, FieldType type, std::string_view field = {});
    BoundPtr ToMoney(BoundPtr value, std::string_view field = {});
    BoundPtr ToText(BoundPtr value);
    BoundPtr ToDate(BoundPtr value);
    BoundPtr ToCondition(BoundPtr value, std::string_view field = {});

  private:
    // Statements.
    void BindInsert(const Statement& statement, BoundStatement& bound);
    void BindUpdate(const Statement& statement, BoundStatement& bound);
    void BindDelete(const Statement& statement, BoundStatement& bound);
    const Table& FindTable(std::string_view name, std::size_t position) const;
    const Column& FindField(const Table& table, const Assignment& assignment) const;
    /// Binds a condition of a clause in which aggregates aren't allowed.
    BoundPtr BindCondition(const ExpressionPtr& condition, std::string_view clause);

    // Queries.
    using Targets = std::span<const Column* const>;
    /// With `targets`, each column is converted to the type of its field.
    std::unique_ptr<BoundQuery> BindQuery(const Query& query, Targets targets = {});
    std::unique_ptr<BoundQuery> BindColumnQuery(const Expression& expression);
    BoundSelect BindSelect(const Select& select);
    void BindItem(const SelectItem& item, BoundSelect& select);
    void BindStar(const Expression& star, BoundSelect& select);
    void BindUnion(BoundQuery& query);
    void BindTargets(BoundQuery& query, Targets targets, std::size_t position);
    void BindOrder(const Query& query, BoundQuery& bound);
    std::size_t OrderColumn(const Expression& expression, const BoundQuery& query) const;
    std::unique_ptr<BoundSource> BindSource(const Source& source);
    void BindTable(const Source& source, BoundSource& bound);
    void AddToScope(const ScopeSource& source, std::size_t position);

    // Expressions.
    BoundPtr BindNumber(const Expression& expression) const;
    BoundPtr BindDate(const Expression& expression) const;
    BoundPtr BindColumn(const Expression& expression) const;
    BoundPtr FindColumn(const ScopeSource& source, const Expression& expression) const;
    BoundPtr BindNegate(const Expression& expression);
    BoundPtr BindOperator(const Expression& expression);
    BoundPtr BindRow(const Expression& expression);
    BoundPtr BindLike(const Expression& expression);
    BoundPtr BindSum(const Expression& expression, BoundPtr left, BoundPtr right);
    BoundPtr BindArithmetic(const Expression& expression, BoundPtr left, BoundPtr right);
    BoundPtr BindDateArithmetic(const Expression& expression, BoundPtr left, BoundPtr right);
    BoundPtr BindMoneyArithmetic(const Expression& expression, BoundPtr left, BoundPtr right);
    BoundPtr BindComparison(const Expression& expression);
    BoundPtr BindIsNull(const Expression& expression);
    BoundPtr BindBetween(const Expression& expression);
    BoundPtr BindIn(const Expression& expression);
    BoundPtr BindAmong(const Expression& expression, BoundKind kind);
    BoundPtr BindInQuery(const Expression& expression);
    BoundPtr BindSubquery(const Expression& expression);
    BoundPtr BindFunction(const Expression& expression);

    /// Converts values that are compared with each other to one domain.
    Domain BringTogether(std::span<BoundPtr* const> values);
    BoundPtr ToDomain(BoundPtr value, Domain domain, FieldType parameterType);
    /// Returns a constant as stored money (scaled by 10,000), with any digits beyond four decimals.
    BoundPtr ToExactMoney(BoundPtr value) const;
    /// Sets the type of a parameter or null that has none yet.
    void TellType(BoundExpression& value, FieldType type);
    /// Reads a literal as a number, also one that is written as text. Throws DialectError if it
    /// isn't a number.
    BoundPtr NumberOfLiteral(const BoundExpression& literal, std::string_view field) const;
    [[noreturn]] void CannotHold(const BoundExpression& value, std::string_view field,
                                 std::string_view wanted) const;

    std::string_view text_;
    const Catalog& catalog_;
    std::vector<std::optional<FieldType>> parameters_;
    Scope* scope_ = nullptr;
    /// The name of the clause being bound if aggregates aren't allowed in it; otherwise empty.
    std::string_view rowClause_;

    friend class RowClause;
};

/// Wraps computed money in a check that fails the statement if the result isn't exact. One check
/// around the whole expression is enough: a value that has overflowed to a double stays one.
BoundPtr Exact(BoundPtr money);
bool IsExact(const BoundExpression& money);
/// Returns the money expression without the check around it.
BoundPtr WithoutCheck(BoundPtr money);

/// During its lifetime, aggregates aren't allowed because the named clause is evaluated for single
/// rows; an empty name allows them again.
class RowClause {
  public:
    RowClause(Binder& binder, std::string_view clause);
    ~RowClause() { binder_.rowClause_ = outer_; }
    RowClause(const RowClause&) = delete;
    RowClause& operator=(const RowClause&) = delete;

  private:
    Binder& binder_;
    std::string_view outer_;
};

} // namespace platform::dialect
