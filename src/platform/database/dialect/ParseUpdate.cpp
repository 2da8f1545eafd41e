#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

Statement Parser::ParseUpdate() {
    Statement statement;
    statement.kind = Statement::Kind::Update;
    ParseTarget(statement);
    ExpectWord("SET");
    do {
        Assignment assignment = ParseField();
        ExpectSymbol('=');
        assignment.value = ParseExpression();
        statement.assignments.push_back(std::move(assignment));
    } while (TakeSymbol(','));
    if (TakeWord("WHERE")) statement.where = ParseExpression();
    return statement;
}

} // namespace platform::dialect
