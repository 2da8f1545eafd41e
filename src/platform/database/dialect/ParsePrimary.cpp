#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

ExpressionPtr Parser::ParsePrimary() {
    switch (Peek().kind) {
        case TokenKind::Number:
            return MakeExpression(ExpressionKind::Number, Take());
        case TokenKind::Text:
            return MakeExpression(ExpressionKind::Text, Take());
        case TokenKind::Date:
            return MakeExpression(ExpressionKind::Date, Take());
        case TokenKind::Parameter: {
            ExpressionPtr expression = MakeExpression(ExpressionKind::Parameter, Take());
            expression->parameter = parameters_++;
            return expression;
        }
        case TokenKind::Name:
        case TokenKind::QuotedName:
            return ParseNamed();
        case TokenKind::Symbol:
            if (IsSymbol('(')) return ParseParenthesised();
            break;
        case TokenKind::End:
            break;
    }
    Expected("a value");
}

ExpressionPtr Parser::ParseParenthesised() {
    if (IsWord("SELECT", 1)) {
        ExpressionPtr expression = MakeExpression(ExpressionKind::Subquery, Peek());
        expression->query = ParseParenthesisedQuery();
        return expression;
    }
    ExpectSymbol('(');
    ExpressionPtr expression = ParseExpression();
    ExpectSymbol(')');
    return expression;
}

ExpressionPtr Parser::ParseNamed() {
    if (Peek().kind == TokenKind::Name && IsSymbol('(', 1)) return ParseCall();
    if (!IsSymbol('.', 1)) {
        if (IsWord("TRUE") || IsWord("FALSE")) {
            return MakeExpression(ExpressionKind::Boolean, Take());
        }
        if (IsWord("NULL")) return MakeExpression(ExpressionKind::Null, Take());
        if (IsReserved()) Expected("a value");
    }
    ExpressionPtr expression = MakeExpression(ExpressionKind::Column, Take());
    if (!TakeSymbol('.')) return expression;
    expression->table = expression->text;
    if (IsSymbol('*')) {
        expression->kind = ExpressionKind::Star;
        expression->text = Take().text;
    } else {
        expression->text = ExpectName("a field").text;
    }
    return expression;
}

ExpressionPtr Parser::ParseCall() {
    if (IsWord("EXISTS")) {
        ExpressionPtr expression = MakeExpression(ExpressionKind::Exists, Take());
        expression->query = ParseParenthesisedQuery();
        return expression;
    }
    if (IsReserved()) Expected("a value");
    ExpressionPtr expression = MakeExpression(ExpressionKind::Function, Take());
    ExpectSymbol('(');
    if (TakeSymbol(')')) return expression;
    if (IsSymbol('*')) {
        expression->operands.push_back(MakeExpression(ExpressionKind::Star, Take()));
    } else {
        expression->operands = ParseList();
    }
    ExpectSymbol(')');
    return expression;
}

} // namespace platform::dialect
