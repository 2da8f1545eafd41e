#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Bound.h"
#include "platform/database/dialect/Catalog.h"
#include "platform/database/dialect/Syntax.h"

namespace platform::dialect {

/// One table or derived table whose columns a name can mean.
struct ScopeSource {
    std::string_view alias;
    /// The table, null for a derived one, which has `columns` instead.
    const Table* table = nullptr;
    const std::vector<ResultColumn>* columns = nullptr;
};

/// The names of one SELECT, within the names of the queries around it.
struct Scope {
    std::vector<ScopeSource> sources;
    /// The first of them that names can mean: those before a join are not known to its ON.
    std::size_t first = 0;
    Scope* outer = nullptr;
    bool hasAggregate = false;
};

/// What values that are compared with one another are compared as.
enum class Domain { Text, Number, Money, Date, Boolean };

/// Resolves the names of a syntax tree, types its expressions and converts where types meet.
class Binder {
  public:
    Binder(std::string_view text, const Catalog& catalog, std::size_t parameters)
        : text_(text), catalog_(catalog), parameters_(parameters) {}

    BoundStatement Bind(const Statement& statement);

    // What the functions' bindings are made of.
    BoundPtr Bind(const Expression& expression);
    [[noreturn]] void Fault(std::size_t position, std::string_view message) const;
    /// The number of the row that a value comes from, where its query reads one table only.
    BoundPtr RowNumber() const;

    // An expression as a value of another type. A text that doesn't convert is a fault here where
    // it is a literal, and fails the statement while it runs where it isn't; `field` is the one
    // that is to hold it, if any.
    BoundPtr ToType(BoundPtr value, FieldType type, std::string_view field = {});
    /// Any number, as whole as it is.
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
    /// A condition on the rows of a clause that sums nothing up.
    BoundPtr BindCondition(const ExpressionPtr& condition, std::string_view clause);

    // Queries.
    using Targets = std::span<const Column* const>;
    /// With `targets`, the columns are brought to the types of those fields.
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

    /// Brings values that are compared to one domain.
    Domain BringTogether(std::span<BoundPtr* const> values);
    BoundPtr ToDomain(BoundPtr value, Domain domain, FieldType parameterType);
    /// A constant as stored money, with what it has beyond the four decimals.
    BoundPtr ToExactMoney(BoundPtr value) const;
    /// Gives a parameter or null its type, where it has none yet.
    void TellType(BoundExpression& value, FieldType type);
    /// A literal of a number, from text that may be one. Throws DialectError if it isn't.
    BoundPtr NumberOfLiteral(const BoundExpression& literal, std::string_view field) const;
    [[noreturn]] void CannotHold(const BoundExpression& value, std::string_view field,
                                 std::string_view wanted) const;

    std::string_view text_;
    const Catalog& catalog_;
    std::vector<std::optional<FieldType>> parameters_;
    Scope* scope_ = nullptr;
    /// The clause being bound if it can't hold an aggregate; empty if it can.
    std::string_view rowClause_;

    friend class RowClause;
};

/// A check that money under reckoning stayed exact; the statement fails where it did not. One
/// outside is enough: what left the whole numbers never comes back.
BoundPtr Exact(BoundPtr money);
bool IsExact(const BoundExpression& money);
/// Money without the check around it.
BoundPtr WithoutCheck(BoundPtr money);

/// Binds what follows as a clause over single rows, where nothing can be summed up; an empty name
/// allows it again.
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
