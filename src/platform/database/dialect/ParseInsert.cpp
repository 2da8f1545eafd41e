#include <fmt/core.h>

#include "platform/database/dialect/Parser.h"

namespace platform::dialect {

Statement Parser::ParseInsert() {
    Statement statement;
    statement.kind = Statement::Kind::Insert;
    ExpectWord("INTO");
    ParseTarget(statement);
    if (IsSymbol('(')) ParseInsertColumns(statement);
    if (TakeWord("VALUES")) {
        ParseInsertValues(statement);
    } else if (IsWord("SELECT")) {
        statement.query = ParseQuery();
    } else {
        Expected("VALUES or SELECT");
    }
    return statement;
}

void Parser::ParseInsertColumns(Statement& statement) {
    ExpectSymbol('(');
    do {
        statement.assignments.push_back(ParseField());
    } while (TakeSymbol(','));
    ExpectSymbol(')');
}

void Parser::ParseInsertValues(Statement& statement) {
    const std::size_t position = Peek().position;
    ExpectSymbol('(');
    std::vector<ExpressionPtr> values = ParseList();
    ExpectSymbol(')');
    if (statement.assignments.empty()) statement.assignments.resize(values.size());
    if (values.size() != statement.assignments.size()) {
        ThrowFault(
            text_, position,
            fmt::format("{} values for {} fields", values.size(), statement.assignments.size()));
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        statement.assignments[i].value = std::move(values[i]);
    }
}

} // namespace platform::dialect
