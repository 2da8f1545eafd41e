#pragma once

#include <string_view>
#include <vector>

#include "platform/database/dialect/Syntax.h"
#include "platform/database/dialect/Token.h"

namespace platform::dialect {

/// Reads a statement word by word. Words of the grammar are no reserved names: they have their
/// meaning only where the grammar asks for them.
class Parser {
  public:
    explicit Parser(std::string_view text);

    Statement ParseStatement();

  private:
    // Words.
    const Token& Peek(std::size_t ahead = 0) const;
    Token Take();
    bool IsWord(std::string_view word, std::size_t ahead = 0) const;
    bool IsSymbol(std::string_view symbol, std::size_t ahead = 0) const;
    bool TakeWord(std::string_view word);
    bool TakeSymbol(std::string_view symbol);
    void ExpectWord(std::string_view word);
    void ExpectSymbol(std::string_view symbol);
    Token ExpectName(std::string_view what);
    [[noreturn]] void Expected(std::string_view what) const;

    // Statements.
    Statement ParseInsert();
    Statement ParseUpdate();
    Statement ParseDelete();
    void ParseTarget(Statement& statement);
    void ParseInsertColumns(Statement& statement);
    void ParseInsertValues(Statement& statement);

    // Queries.
    std::unique_ptr<Query> ParseQuery();
    Select ParseSelect();
    SelectItem ParseSelectItem();
    std::unique_ptr<Source> ParseJoins();
    std::unique_ptr<Source> ParseSource();
    std::string_view ParseAlias();
    std::vector<ExpressionPtr> ParseList();

    // Expressions, from the weakest binding to the strongest.
    ExpressionPtr ParseExpression();
    ExpressionPtr ParseAnd();
    ExpressionPtr ParseNot();
    ExpressionPtr ParseComparison();
    ExpressionPtr ParsePredicate(ExpressionPtr left, bool negated);
    ExpressionPtr ParseIn(ExpressionPtr left, bool negated);
    ExpressionPtr ParseConcatenation();
    ExpressionPtr ParseSum();
    ExpressionPtr ParseModulo();
    ExpressionPtr ParseIntegerDivision();
    ExpressionPtr ParseProduct();
    ExpressionPtr ParseSign();
    ExpressionPtr ParsePower();
    ExpressionPtr ParsePrimary();
    ExpressionPtr ParseParenthesised();
    ExpressionPtr ParseNamed();
    ExpressionPtr ParseCall();

    class Depth;

    std::string_view text_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
    std::size_t parameters_ = 0;
    int depth_ = 0;
};

/// Counts nested queries, parentheses and signs, so that nonsense can't exhaust the stack.
class Parser::Depth {
  public:
    explicit Depth(Parser& parser);
    ~Depth() { --parser_.depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

  private:
    Parser& parser_;
};

} // namespace platform::dialect
