#include <algorithm>

#include "platform/database/dialect/Parser.h"
#include "platform/values/Text.h"

namespace platform::dialect {

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
        } while (TakeSymbol(','));
    }
    return query;
}

std::unique_ptr<Query> Parser::ParseParenthesisedQuery() {
    ExpectSymbol('(');
    std::unique_ptr<Query> query = ParseQuery();
    ExpectSymbol(')');
    return query;
}

Select Parser::ParseSelect() {
    Select select;
    select.position = Peek().position;
    ExpectWord("SELECT");
    select.distinct = TakeWord("DISTINCT");
    if (!select.distinct && IsWord("ALL") && !IsSymbol(',', 1) && !IsWord("FROM", 1)) Take();
    ParseTop(select);
    do {
        select.items.push_back(ParseSelectItem());
    } while (TakeSymbol(','));
    if (TakeWord("FROM")) {
        do {
            select.from.push_back(ParseSource());
        } while (TakeSymbol(','));
    }
    if (TakeWord("WHERE")) select.where = ParseExpression();
    if (TakeWord("GROUP")) {
        ExpectWord("BY");
        select.groupBy = ParseList();
    }
    if (TakeWord("HAVING")) select.having = ParseExpression();
    return select;
}

void Parser::ParseTop(Select& select) {
    // Top can be the name of a field.
    if (!IsWord("TOP") || Peek(1).kind != TokenKind::Number) return;
    Take();
    const Token number = Take();
    constexpr std::size_t kMostDigits = 9;
    const bool isWhole = std::ranges::all_of(number.text, IsDigit);
    if (!isWhole || number.text.size() > kMostDigits) {
        ThrowFault(text_, number.position, "TOP needs a whole number");
    }
    select.top = number.text;
    select.topIsPercent = TakeWord("PERCENT");
}

SelectItem Parser::ParseSelectItem() {
    SelectItem item;
    if (IsSymbol('*')) {
        item.expression = MakeExpression(ExpressionKind::Star, Take());
        return item;
    }
    item.expression = ParseExpression();
    if (item.expression->kind != ExpressionKind::Star) item.alias = ParseAlias();
    return item;
}

std::string_view Parser::ParseAlias() {
    if (TakeWord("AS")) {
        if (Peek().kind == TokenKind::Text && !Peek().text.empty()) return Take().text;
        return ExpectName("a name").text;
    }
    if (Peek().kind == TokenKind::QuotedName) return Take().text;
    const bool isAlias =
        Peek().kind == TokenKind::Name && !IsReserved() && !IsWord("LEFT") && !IsWord("RIGHT");
    return isAlias ? Take().text : std::string_view();
}

std::vector<ExpressionPtr> Parser::ParseList() {
    std::vector<ExpressionPtr> list;
    do {
        list.push_back(ParseExpression());
    } while (TakeSymbol(','));
    return list;
}

} // namespace platform::dialect
