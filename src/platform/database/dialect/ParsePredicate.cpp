#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

ExpressionPtr Parser::ParsePredicate(ExpressionPtr left, const Operator& word) {
    Token token = Take();
    ExpressionPtr expression = MakeExpression(ExpressionKind::IsNull, token);
    std::string_view predicate = word.text;
    if (predicate == "NOT") {
        expression->negated = true;
        for (const std::string_view candidate : {"IN", "LIKE", "BETWEEN"}) {
            if (IsWord(candidate)) predicate = candidate;
        }
        if (predicate == "NOT") Expected("IN, LIKE or BETWEEN");
        Take();
    }
    expression->operands.push_back(std::move(left));
    if (predicate == "IN") {
        ParseIn(*expression);
    } else if (predicate == "IS") {
        expression->negated = TakeWord("NOT");
        ExpectWord("NULL");
    } else if (predicate == "BETWEEN") {
        expression->kind = ExpressionKind::Between;
        expression->operands.push_back(ParseOperators(Precedence::Join));
        ExpectWord("AND");
        expression->operands.push_back(ParseOperators(Precedence::Join));
    } else {
        expression->kind = ExpressionKind::Binary;
        expression->text = "LIKE";
        expression->operands.push_back(ParseOperators(Precedence::Join));
    }
    return expression;
}

void Parser::ParseIn(Expression& expression) {
    if (!IsSymbol('(')) Expected("'('");
    if (IsWord("SELECT", 1)) {
        expression.kind = ExpressionKind::InQuery;
        expression.query = ParseParenthesisedQuery();
        return;
    }
    Take();
    expression.kind = ExpressionKind::In;
    for (ExpressionPtr& item : ParseList())
        expression.operands.push_back(std::move(item));
    ExpectSymbol(')');
}

} // namespace platform::dialect
