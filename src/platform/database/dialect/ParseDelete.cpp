#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

Statement Parser::ParseDelete() {
    Statement statement;
    statement.kind = Statement::Kind::Delete;
    // A star in front, or a table's, says no more than its absence: whole rows go.
    if (!TakeSymbol('*') && !IsWord("FROM")) {
        ExpectName("* or FROM");
        ExpectSymbol('.');
        ExpectSymbol('*');
    }
    ExpectWord("FROM");
    ParseTarget(statement);
    if (TakeWord("WHERE")) statement.where = ParseExpression();
    return statement;
}

} // namespace platform::dialect
