#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/database/dialect/Syntax.h"
#include "platform/database/dialect/Token.h"

namespace platform::dialect {

/// The precedence of operators, loosest first.
enum class Precedence { Eqv, Xor, Or, And, Comparison, Join, Sum, Modulo, Whole, Product, Power };

/// Parses a statement by recursive descent. A keyword is one only where the grammar expects it;
/// only the few that could be mistaken for a value are reserved.
class Parser {
  public:
    explicit Parser(std::string_view text);

    Statement ParseStatement();

  private:
    // Tokens.
    const Token& Peek(std::size_t ahead = 0) const;
    Token Take();
    bool IsWord(std::string_view word, std::size_t ahead = 0) const;
    bool IsSymbol(char symbol, std::size_t ahead = 0) const;
    bool TakeWord(std::string_view word);
    bool TakeSymbol(char symbol);
    void ExpectWord(std::string_view word);
    void ExpectSymbol(char symbol);
    Token ExpectName(std::string_view what);
    bool IsReserved() const;
    [[noreturn]] void Expected(std::string_view what) const;

    // Statements.
    Statement ParseInsert();
    Statement ParseUpdate();
    Statement ParseDelete();
    void ParseTarget(Statement& statement);
    void ParseInsertColumns(Statement& statement);
    void ParseInsertValues(Statement& statement);
    /// Parses a field name, with an optional table before it.
    Assignment ParseField();

    // Queries.
    std::unique_ptr<Query> ParseQuery();
    std::unique_ptr<Query> ParseParenthesisedQuery();
    Select ParseSelect();
    void ParseTop(Select& select);
    SelectItem ParseSelectItem();
    std::string_view ParseAlias();
    std::unique_ptr<Source> ParseSource();
    std::unique_ptr<Source> ParseJoin(std::unique_ptr<Source> left);
    std::unique_ptr<Source> ParseSingleSource();
    std::vector<ExpressionPtr> ParseList();

    // Expressions.
    struct Operator {
        std::string_view text; ///< empty for none; in capitals
        Precedence precedence = Precedence::Eqv;
    };

    ExpressionPtr ParseExpression();
    /// Parses operators with at least this precedence.
    ExpressionPtr ParseOperators(Precedence least);
    ExpressionPtr ParsePrefix();
    Operator PeekOperator() const;
    ExpressionPtr ParsePredicate(ExpressionPtr left, const Operator& word);
    void ParseIn(Expression& expression);
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

/// Limits the nesting, so that a malicious statement can't exhaust the stack.
class Parser::Depth {
  public:
    explicit Depth(Parser& parser);
    ~Depth() { --parser_.depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

  private:
    Parser& parser_;
};

/// Returns a node with the token's text and position.
ExpressionPtr MakeExpression(ExpressionKind kind, const Token& token);

} // namespace platform::dialect
