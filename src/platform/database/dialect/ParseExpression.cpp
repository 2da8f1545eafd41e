#include "platform/database/dialect/Parser.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

ExpressionPtr MakeExpression(ExpressionKind kind, const Token& token) {
    auto expression = std::make_unique<Expression>();
    expression->kind = kind;
    expression->position = token.position;
    expression->text = token.text;
    return expression;
}

ExpressionPtr MakeBinary(std::string_view symbol, std::size_t position, ExpressionPtr left,
                         ExpressionPtr right) {
    auto expression = std::make_unique<Expression>();
    expression->kind = ExpressionKind::Binary;
    expression->position = position;
    expression->text = symbol;
    expression->operands.push_back(std::move(left));
    expression->operands.push_back(std::move(right));
    return expression;
}

} // namespace

ExpressionPtr Parser::ParseExpression() {
    const Depth depth(*this);
    ExpressionPtr left = ParseAnd();
    while (true) {
        const std::size_t position = Peek().position;
        std::string_view word;
        if (TakeWord("OR")) {
            word = "OR";
        } else if (TakeWord("XOR")) {
            word = "XOR";
        } else if (TakeWord("EQV")) {
            word = "EQV";
        } else {
            return left;
        }
        left = MakeBinary(word, position, std::move(left), ParseAnd());
    }
}

ExpressionPtr Parser::ParseAnd() {
    ExpressionPtr left = ParseNot();
    while (true) {
        const std::size_t position = Peek().position;
        if (!TakeWord("AND")) return left;
        left = MakeBinary("AND", position, std::move(left), ParseNot());
    }
}

ExpressionPtr Parser::ParseNot() {
    if (!IsWord("NOT")) return ParseComparison();
    const Depth depth(*this);
    ExpressionPtr expression = MakeExpression(ExpressionKind::Not, Take());
    expression->operands.push_back(ParseNot());
    return expression;
}

ExpressionPtr Parser::ParseComparison() {
    ExpressionPtr left = ParseConcatenation();
    while (true) {
        const Token& token = Peek();
        const bool compares =
            token.kind == TokenKind::Symbol &&
            (token.text == "=" || token.text == "<" || token.text == ">" || token.text == "<=" ||
             token.text == ">=" || token.text == "<>" || token.text == "!=");
        if (compares) {
            const Token symbol = Take();
            left = MakeBinary(symbol.text == "!=" ? "<>" : symbol.text, symbol.position,
                              std::move(left), ParseConcatenation());
            continue;
        }
        const bool negated =
            IsWord("NOT") && (IsWord("IN", 1) || IsWord("BETWEEN", 1) || IsWord("LIKE", 1));
        if (negated) Take();
        if (!IsWord("IS") && !IsWord("IN") && !IsWord("BETWEEN") && !IsWord("LIKE")) return left;
        left = ParsePredicate(std::move(left), negated);
    }
}

ExpressionPtr Parser::ParsePredicate(ExpressionPtr left, bool negated) {
    if (IsWord("IN")) return ParseIn(std::move(left), negated);
    const Token word = Take();
    ExpressionPtr expression = MakeExpression(ExpressionKind::IsNull, word);
    expression->negated = negated;
    expression->operands.push_back(std::move(left));
    if (EqualIgnoringCase(word.text, "IS")) {
        expression->negated = TakeWord("NOT");
        ExpectWord("NULL");
    } else if (EqualIgnoringCase(word.text, "BETWEEN")) {
        expression->kind = ExpressionKind::Between;
        expression->operands.push_back(ParseConcatenation());
        ExpectWord("AND");
        expression->operands.push_back(ParseConcatenation());
    } else {
        expression->kind = ExpressionKind::Binary;
        expression->text = "LIKE";
        expression->operands.push_back(ParseConcatenation());
    }
    return expression;
}

ExpressionPtr Parser::ParseIn(ExpressionPtr left, bool negated) {
    ExpressionPtr expression = MakeExpression(ExpressionKind::In, Take());
    expression->negated = negated;
    expression->operands.push_back(std::move(left));
    ExpectSymbol("(");
    if (IsWord("SELECT")) {
        expression->kind = ExpressionKind::InQuery;
        expression->query = ParseQuery();
    } else {
        for (ExpressionPtr& item : ParseList())
            expression->operands.push_back(std::move(item));
    }
    ExpectSymbol(")");
    return expression;
}

ExpressionPtr Parser::ParseConcatenation() {
    ExpressionPtr left = ParseSum();
    while (IsSymbol("&")) {
        const std::size_t position = Take().position;
        left = MakeBinary("&", position, std::move(left), ParseSum());
    }
    return left;
}

ExpressionPtr Parser::ParseSum() {
    ExpressionPtr left = ParseModulo();
    while (IsSymbol("+") || IsSymbol("-")) {
        const Token symbol = Take();
        left = MakeBinary(symbol.text, symbol.position, std::move(left), ParseModulo());
    }
    return left;
}

ExpressionPtr Parser::ParseModulo() {
    ExpressionPtr left = ParseIntegerDivision();
    while (IsWord("MOD")) {
        const std::size_t position = Take().position;
        left = MakeBinary("MOD", position, std::move(left), ParseIntegerDivision());
    }
    return left;
}

ExpressionPtr Parser::ParseIntegerDivision() {
    ExpressionPtr left = ParseProduct();
    while (IsSymbol("\\")) {
        const std::size_t position = Take().position;
        left = MakeBinary("\\", position, std::move(left), ParseProduct());
    }
    return left;
}

ExpressionPtr Parser::ParseProduct() {
    ExpressionPtr left = ParseSign();
    while (IsSymbol("*") || IsSymbol("/")) {
        const Token symbol = Take();
        left = MakeBinary(symbol.text, symbol.position, std::move(left), ParseSign());
    }
    return left;
}

ExpressionPtr Parser::ParseSign() {
    if (!IsSymbol("-") && !IsSymbol("+")) return ParsePower();
    const Depth depth(*this);
    const Token sign = Take();
    if (sign.text == "+") return ParseSign();
    ExpressionPtr expression = MakeExpression(ExpressionKind::Negate, sign);
    expression->operands.push_back(ParseSign());
    return expression;
}

ExpressionPtr Parser::ParsePower() {
    ExpressionPtr left = ParsePrimary();
    while (IsSymbol("^")) {
        const std::size_t position = Take().position;
        ExpressionPtr right = IsSymbol("-") ? ParseSign() : ParsePrimary();
        left = MakeBinary("^", position, std::move(left), std::move(right));
    }
    return left;
}

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
            if (IsSymbol("(")) return ParseParenthesised();
            break;
        case TokenKind::End:
            break;
    }
    Expected("a value");
}

ExpressionPtr Parser::ParseParenthesised() {
    const Token open = Take();
    ExpressionPtr expression;
    if (IsWord("SELECT")) {
        expression = MakeExpression(ExpressionKind::Subquery, open);
        expression->query = ParseQuery();
    } else {
        expression = ParseExpression();
    }
    ExpectSymbol(")");
    return expression;
}

ExpressionPtr Parser::ParseNamed() {
    const bool isCall = Peek().kind == TokenKind::Name && IsSymbol("(", 1);
    if (isCall) return ParseCall();
    const bool isField = IsSymbol(".", 1);
    if (!isField) {
        if (IsWord("TRUE") || IsWord("FALSE")) {
            return MakeExpression(ExpressionKind::Boolean, Take());
        }
        if (IsWord("NULL")) return MakeExpression(ExpressionKind::Null, Take());
    }
    ExpressionPtr expression = MakeExpression(ExpressionKind::Column, Take());
    if (!TakeSymbol(".")) return expression;
    expression->table = expression->text;
    if (IsSymbol("*")) {
        expression->kind = ExpressionKind::Star;
        expression->text = Take().text;
    } else {
        expression->text = ExpectName("a field").text;
    }
    return expression;
}

ExpressionPtr Parser::ParseCall() {
    const Depth depth(*this);
    if (IsWord("EXISTS") && IsWord("SELECT", 2)) {
        ExpressionPtr expression = MakeExpression(ExpressionKind::Exists, Take());
        ExpectSymbol("(");
        expression->query = ParseQuery();
        ExpectSymbol(")");
        return expression;
    }
    ExpressionPtr expression = MakeExpression(ExpressionKind::Function, Take());
    ExpectSymbol("(");
    if (TakeSymbol(")")) return expression;
    if (IsSymbol("*")) {
        expression->operands.push_back(MakeExpression(ExpressionKind::Star, Take()));
    } else {
        expression->operands = ParseList();
    }
    ExpectSymbol(")");
    return expression;
}

} // namespace platform::dialect
