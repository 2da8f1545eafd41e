#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

Statement Parser::ParseDelete() {
    Statement statement;
    statement.kind = Statement::Kind::Delete;
    // A star, or a table's star, before FROM changes nothing: whole rows are deleted.
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
