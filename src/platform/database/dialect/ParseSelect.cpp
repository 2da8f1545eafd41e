#include <algorithm>

#include "platform/database/dialect/Parser.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

// Words that can't be an alias without AS, since they go on with the statement.
constexpr std::string_view kContinuing[] = {"FROM",  "WHERE", "GROUP", "HAVING", "ORDER", "UNION",
                                            "INNER", "LEFT",  "RIGHT", "JOIN",   "ON",    "AS"};

} // namespace

std::unique_ptr<Query> Parser::ParseQuery() {
    const Depth depth(*this);
    auto query = std::make_unique<Query>();
    query->selects.push_back(ParseSelect());
    while (TakeWord("UNION")) {
        query->keepsEqualRows.push_back(TakeWord("ALL"));
        query->selects.push_back(ParseSelect());
    }
    if (TakeWord("ORDER")) {
        ExpectWord("BY");
        do {
            OrderItem item{ParseExpression()};
            item.descending = TakeWord("DESC");
            if (!item.descending) TakeWord("ASC");
            query->orderBy.push_back(std::move(item));
        } while (TakeSymbol(","));
    }
    return query;
}

Select Parser::ParseSelect() {
    Select select;
    select.position = Peek().position;
    ExpectWord("SELECT");
    select.distinct = TakeWord("DISTINCT") || TakeWord("DISTINCTROW");
    if (!select.distinct) TakeWord("ALL");
    if (IsWord("TOP") && Peek(1).kind == TokenKind::Number) {
        Take();
        select.top = Take().text;
        if (!std::all_of(select.top.begin(), select.top.end(),
                         [](char c) { return c >= '0' && c <= '9'; })) {
            ThrowFault(text_, select.position, "TOP needs a whole number");
        }
    }
    do {
        select.items.push_back(ParseSelectItem());
    } while (TakeSymbol(","));
    if (TakeWord("FROM")) {
        do {
            select.from.push_back(ParseJoins());
        } while (TakeSymbol(","));
    }
    if (TakeWord("WHERE")) select.where = ParseExpression();
    if (TakeWord("GROUP")) {
        ExpectWord("BY");
        select.groupBy = ParseList();
    }
    if (TakeWord("HAVING")) select.having = ParseExpression();
    return select;
}

SelectItem Parser::ParseSelectItem() {
    SelectItem item;
    if (IsSymbol("*")) {
        item.expression = std::make_unique<Expression>();
        item.expression->kind = ExpressionKind::Star;
        item.expression->position = Take().position;
        return item;
    }
    item.expression = ParseExpression();
    item.alias = ParseAlias();
    return item;
}

std::string_view Parser::ParseAlias() {
    if (TakeWord("AS")) {
        if (Peek().kind == TokenKind::Text) return Take().text;
        return ExpectName("a name").text;
    }
    const Token& token = Peek();
    if (token.kind == TokenKind::QuotedName) return Take().text;
    const bool isName = token.kind == TokenKind::Name &&
                        std::none_of(std::begin(kContinuing), std::end(kContinuing),
                                     [&](std::string_view word) { return IsWord(word); });
    return isName ? Take().text : std::string_view();
}

std::unique_ptr<Source> Parser::ParseJoins() {
    std::unique_ptr<Source> left = ParseSource();
    while (true) {
        auto join = std::make_unique<Source>();
        join->position = Peek().position;
        if (IsWord("LEFT") || IsWord("RIGHT")) {
            join->kind = TakeWord("LEFT") ? Source::Kind::Left : Source::Kind::Right;
            if (join->kind == Source::Kind::Right) TakeWord("RIGHT");
            TakeWord("OUTER");
            ExpectWord("JOIN");
        } else if (IsWord("INNER") || IsWord("JOIN")) {
            join->kind = Source::Kind::Inner;
            TakeWord("INNER");
            ExpectWord("JOIN");
        } else {
            return left;
        }
        join->left = std::move(left);
        join->right = ParseSource();
        ExpectWord("ON");
        join->on = ParseExpression();
        left = std::move(join);
    }
}

std::unique_ptr<Source> Parser::ParseSource() {
    const Depth depth(*this);
    auto source = std::make_unique<Source>();
    source->position = Peek().position;
    if (TakeSymbol("(")) {
        if (!IsWord("SELECT")) {
            source = ParseJoins();
            ExpectSymbol(")");
            return source;
        }
        source->kind = Source::Kind::Derived;
        source->query = ParseQuery();
        ExpectSymbol(")");
    } else {
        source->table = ExpectName("a table").text;
    }
    source->alias = ParseAlias();
    if (source->alias.empty()) source->alias = source->table;
    return source;
}

std::vector<ExpressionPtr> Parser::ParseList() {
    std::vector<ExpressionPtr> list;
    do {
        list.push_back(ParseExpression());
    } while (TakeSymbol(","));
    return list;
}

} // namespace platform::dialect
