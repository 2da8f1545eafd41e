#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

std::unique_ptr<Source> Parser::ParseSource() {
    std::unique_ptr<Source> source = ParseSingleSource();
    while (IsWord("INNER") || IsWord("LEFT") || IsWord("RIGHT") || IsWord("JOIN")) {
        source = ParseJoin(std::move(source));
    }
    return source;
}

std::unique_ptr<Source> Parser::ParseJoin(std::unique_ptr<Source> left) {
    const Depth depth(*this);
    auto join = std::make_unique<Source>();
    join->position = Peek().position;
    join->kind = Source::Kind::Inner;
    if (TakeWord("LEFT"))
        join->kind = Source::Kind::Left;
    else if (TakeWord("RIGHT"))
        join->kind = Source::Kind::Right;
    else
        TakeWord("INNER");
    if (join->kind != Source::Kind::Inner) TakeWord("OUTER");
    ExpectWord("JOIN");
    join->left = std::move(left);
    join->right = ParseSingleSource();
    ExpectWord("ON");
    join->on = ParseExpression();
    return join;
}

std::unique_ptr<Source> Parser::ParseSingleSource() {
    const Depth depth(*this);
    auto source = std::make_unique<Source>();
    source->position = Peek().position;
    if (!IsSymbol('(')) {
        if (IsReserved()) Expected("a table");
        source->table = ExpectName("a table").text;
    } else if (IsWord("SELECT", 1)) {
        source->kind = Source::Kind::Derived;
        source->query = ParseParenthesisedQuery();
    } else {
        Take();
        source = ParseSource();
        ExpectSymbol(')');
        return source;
    }
    source->alias = ParseAlias();
    return source;
}

} // namespace platform::dialect
