#include <array>

#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

namespace {

// The most operands that operators of equal precedence can join without parentheses; each level
// nests in the next, and the engine limits the depth.
constexpr std::size_t kLongestRow = 500;

Precedence Next(Precedence precedence) {
    return static_cast<Precedence>(static_cast<int>(precedence) + 1);
}

/// Returns true for an operator whose operands become one node, because grouping them differently
/// changes nothing.
bool IsInRow(std::string_view symbol) {
    return symbol == "AND" || symbol == "OR" || symbol == "&";
}

} // namespace

ExpressionPtr MakeExpression(ExpressionKind kind, const Token& token) {
    auto expression = std::make_unique<Expression>();
    expression->kind = kind;
    expression->position = token.position;
    expression->text = token.text;
    expression->quote = token.quote;
    return expression;
}

ExpressionPtr Parser::ParseExpression() {
    const Depth depth(*this);
    return ParseOperators(Precedence::Eqv);
}

Parser::Operator Parser::PeekOperator() const {
    struct Entry {
        std::string_view symbol;
        Operator result;
    };
    static constexpr auto kSymbols = std::to_array<Entry>({
        {"=", {"=", Precedence::Comparison}},
        {"<>", {"<>", Precedence::Comparison}},
        {"!=", {"<>", Precedence::Comparison}},
        {"<", {"<", Precedence::Comparison}},
        {">", {">", Precedence::Comparison}},
        {"<=", {"<=", Precedence::Comparison}},
        {">=", {">=", Precedence::Comparison}},
        {"&", {"&", Precedence::Join}},
        {"+", {"+", Precedence::Sum}},
        {"-", {"-", Precedence::Sum}},
        {"\\", {"\\", Precedence::Whole}},
        {"*", {"*", Precedence::Product}},
        {"/", {"/", Precedence::Product}},
        {"^", {"^", Precedence::Power}},
    });
    static constexpr auto kWords = std::to_array<Operator>({
        {"AND", Precedence::And},
        {"OR", Precedence::Or},
        {"IS", Precedence::Comparison},
        {"IN", Precedence::Comparison},
        {"LIKE", Precedence::Comparison},
        {"BETWEEN", Precedence::Comparison},
        {"NOT", Precedence::Comparison},
        {"MOD", Precedence::Modulo},
        {"XOR", Precedence::Xor},
        {"EQV", Precedence::Eqv},
    });
    const Token& token = Peek();
    if (token.kind == TokenKind::Symbol) {
        for (const Entry& entry : kSymbols) {
            if (entry.symbol == token.text) return entry.result;
        }
    } else if (token.kind == TokenKind::Name) {
        for (const Operator& word : kWords) {
            if (IsWord(word.text)) return word;
        }
    }
    return {};
}

ExpressionPtr Parser::ParseOperators(Precedence least) {
    ExpressionPtr left = ParsePrefix();
    std::size_t length = 0;
    for (Operator next = PeekOperator(); !next.text.empty() && next.precedence >= least;
         next = PeekOperator()) {
        const bool isPredicate =
            next.precedence == Precedence::Comparison && Peek().kind == TokenKind::Name;
        const bool goesOn = IsInRow(next.text) && length > 0 && left->text == next.text;
        if (!goesOn && ++length > kLongestRow) {
            ThrowFault(text_, Peek().position, "The expression is too long");
        }
        if (isPredicate) {
            left = ParsePredicate(std::move(left), next);
            continue;
        }
        Token symbol = Take();
        symbol.text = next.text;
        if (!goesOn) {
            ExpressionPtr node = MakeExpression(ExpressionKind::Binary, symbol);
            node->operands.push_back(std::move(left));
            left = std::move(node);
        }
        left->operands.push_back(ParseOperators(Next(next.precedence)));
    }
    return left;
}

ExpressionPtr Parser::ParsePrefix() {
    const bool isNot = IsWord("NOT");
    if (!isNot && !IsSymbol('-') && !IsSymbol('+')) return ParsePrimary();
    const Depth depth(*this);
    const Token sign = Take();
    if (isNot) {
        ExpressionPtr expression = MakeExpression(ExpressionKind::Not, sign);
        expression->operands.push_back(ParseOperators(Precedence::Comparison));
        return expression;
    }
    ExpressionPtr operand = ParseOperators(Precedence::Power);
    if (sign.text == "+") return operand;
    ExpressionPtr expression = MakeExpression(ExpressionKind::Negate, sign);
    expression->operands.push_back(std::move(operand));
    return expression;
}

} // namespace platform::dialect
