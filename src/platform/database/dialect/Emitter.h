#pragma once

#include <string>
#include <string_view>

#include "platform/database/dialect/Bound.h"

namespace platform::dialect {

/// The precedence of the engine's operators, loosest first.
enum class Binding { Or, And, Not, Equal, Order, Sum, Product, Join, Collate, Sign, Value };

/// The names of a query's columns: their own, or numbered.
enum class ColumnNames { Own, Numbered };

/// Writes a bound statement in the engine's SQL with as few parentheses as possible, because the
/// engine accepts only a few dozen nested ones.
class Emitter {
  public:
    std::string Emit(const BoundStatement& statement);

  private:
    void EmitInsert(const BoundStatement& statement);
    void EmitUpdate(const BoundStatement& statement);
    void EmitDelete(const BoundStatement& statement);

    void EmitQuery(const BoundQuery& query, ColumnNames names);
    void EmitSelect(const BoundSelect& select, const BoundQuery& query, ColumnNames names);
    void EmitItems(const BoundSelect& select, const BoundQuery& query, ColumnNames names);
    void EmitUnionPart(const BoundSelect& select, const BoundQuery& query, ColumnNames names);
    void EmitFrom(const BoundSelect& select);
    void EmitSource(const BoundSource& source);
    void EmitJoined(const BoundSource& source);
    void EmitGroup(const BoundSelect& select);
    void EmitOrder(const BoundQuery& query);
    void EmitTop(const BoundSelect& select, const BoundQuery& query);

    void Emit(const BoundExpression& expression, Binding least = Binding::Or);
    void EmitNode(const BoundExpression& expression);
    void EmitInfix(const BoundExpression& expression);
    void EmitRow(const BoundExpression& expression, std::size_t first, std::size_t end);
    void EmitPredicate(const BoundExpression& expression);
    void EmitCall(const BoundExpression& expression);
    void EmitCase(const BoundExpression& expression);
    /// Writes an operand of a comparison.
    void EmitCompared(const BoundExpression& expression, Binding least, bool ignoresCase);
    void EmitList(const BoundExpression& expression, std::size_t first);
    /// Writes a term of ORDER BY or GROUP BY; a plain number there would mean a column to the
    /// engine.
    void EmitTerm(const BoundExpression& expression);
    void EmitClause(std::string_view word, const BoundPtr& condition);
    void EmitNested(const BoundQuery& query, ColumnNames names = ColumnNames::Own);

    std::string sql_;
};

} // namespace platform::dialect
