#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

Statement Parser::ParseUpdate() {
    Statement statement;
    statement.kind = Statement::Kind::Update;
    ParseTarget(statement);
    ExpectWord("SET");
    do {
        Token column = ExpectName("a field");
        if (TakeSymbol(".")) column = ExpectName("a field");
        ExpectSymbol("=");
        statement.assignments.push_back({column.text, column.position, ParseExpression()});
    } while (TakeSymbol(","));
    if (TakeWord("WHERE")) statement.where = ParseExpression();
    return statement;
}

} // namespace platform::dialect
