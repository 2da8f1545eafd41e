#include <array>

#include "platform/database/dialect/Binder.h"

namespace platform::dialect {

namespace {

BoundPtr MakePredicate(BoundKind kind, const Expression& expression) {
    BoundPtr predicate = MakeBound(kind, FieldType::Boolean, {}, expression.position);
    predicate->negated = expression.negated;
    return predicate;
}

} // namespace

BoundPtr Binder::BindIsNull(const Expression& expression) {
    BoundPtr predicate = MakePredicate(BoundKind::IsNull, expression);
    predicate->operands.push_back(Bind(*expression.operands[0]));
    return predicate;
}

BoundPtr Binder::BindBetween(const Expression& expression) {
    return BindAmong(expression, BoundKind::Between);
}

BoundPtr Binder::BindIn(const Expression& expression) {
    return BindAmong(expression, BoundKind::In);
}

BoundPtr Binder::BindAmong(const Expression& expression, BoundKind kind) {
    BoundPtr predicate = MakePredicate(kind, expression);
    std::vector<BoundPtr*> values;
    predicate->operands.reserve(expression.operands.size());
    for (const ExpressionPtr& operand : expression.operands) {
        predicate->operands.push_back(Bind(*operand));
        values.push_back(&predicate->operands.back());
    }
    predicate->ignoresCase = BringTogether(values) == Domain::Text;
    return predicate;
}

BoundPtr Binder::BindInQuery(const Expression& expression) {
    BoundPtr predicate = MakePredicate(BoundKind::InQuery, expression);
    predicate->operands.push_back(Bind(*expression.operands[0]));
    predicate->query = BindColumnQuery(expression);
    std::vector<BoundPtr*> values = {predicate->operands.data()};
    for (BoundSelect& select : predicate->query->selects)
        values.push_back(&select.items[0].value);
    predicate->ignoresCase = BringTogether(values) == Domain::Text;
    return predicate;
}

BoundPtr Binder::BindSubquery(const Expression& expression) {
    if (expression.kind == ExpressionKind::Exists) {
        BoundPtr exists = MakePredicate(BoundKind::Exists, expression);
        exists->query = BindQuery(*expression.query);
        return exists;
    }
    std::unique_ptr<BoundQuery> query = BindColumnQuery(expression);
    BoundPtr value =
        MakeBound(BoundKind::Subquery, query->columns[0].type, {}, expression.position);
    value->query = std::move(query);
    return value;
}

} // namespace platform::dialect
