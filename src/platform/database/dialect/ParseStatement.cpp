#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Parser.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

constexpr int kDeepest = 100;

// Without brackets these are never field names, nor aliases without AS.
constexpr std::string_view kReserved[] = {
    "SELECT", "FROM", "WHERE", "GROUP", "HAVING", "ORDER", "UNION", "INNER", "JOIN",   "ON",
    "AS",     "AND",  "OR",    "XOR",   "EQV",    "IN",    "IS",    "LIKE",  "BETWEEN"};

} // namespace

Parser::Parser(std::string_view text) : text_(text), tokens_(Tokenize(text)) {}

Parser::Depth::Depth(Parser& parser) : parser_(parser) {
    if (++parser_.depth_ > kDeepest) {
        ThrowFault(parser_.text_, parser_.Peek().position, "The statement is nested too deeply");
    }
}

const Token& Parser::Peek(std::size_t ahead) const {
    return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

Token Parser::Take() {
    const Token token = Peek();
    if (token.kind != TokenKind::End) ++at_;
    return token;
}

bool Parser::IsWord(std::string_view word, std::size_t ahead) const {
    const Token& token = Peek(ahead);
    return token.kind == TokenKind::Name && token.text.size() == word.size() &&
           EqualIgnoringCase(token.text, word);
}

bool Parser::IsSymbol(char symbol, std::size_t ahead) const {
    const Token& token = Peek(ahead);
    return token.kind == TokenKind::Symbol && token.text.size() == 1 && token.text[0] == symbol;
}

bool Parser::TakeWord(std::string_view word) {
    if (!IsWord(word)) return false;
    ++at_;
    return true;
}

bool Parser::TakeSymbol(char symbol) {
    if (!IsSymbol(symbol)) return false;
    ++at_;
    return true;
}

void Parser::ExpectWord(std::string_view word) {
    if (!TakeWord(word)) Expected(word);
}

void Parser::ExpectSymbol(char symbol) {
    if (!TakeSymbol(symbol)) Expected(fmt::format("'{}'", symbol));
}

Token Parser::ExpectName(std::string_view what) {
    const TokenKind kind = Peek().kind;
    if (kind != TokenKind::Name && kind != TokenKind::QuotedName) Expected(what);
    return Take();
}

bool Parser::IsReserved() const {
    return std::ranges::any_of(kReserved, [this](std::string_view word) { return IsWord(word); });
}

void Parser::Expected(std::string_view what) const {
    const Token& token = Peek();
    const std::string found =
        token.kind == TokenKind::End ? "the end of the statement" : fmt::format("'{}'", token.text);
    ThrowFault(text_, token.position, fmt::format("Expected {} instead of {}", what, found));
}

Statement Parser::ParseStatement() {
    Statement statement;
    if (IsWord("SELECT")) {
        statement.query = ParseQuery();
    } else if (TakeWord("INSERT")) {
        statement = ParseInsert();
    } else if (TakeWord("UPDATE")) {
        statement = ParseUpdate();
    } else if (TakeWord("DELETE")) {
        statement = ParseDelete();
    } else {
        Expected("SELECT, INSERT, UPDATE or DELETE");
    }
    TakeSymbol(';');
    if (Peek().kind != TokenKind::End) Expected("the end of the statement");
    statement.parameters = parameters_;
    return statement;
}

void Parser::ParseTarget(Statement& statement) {
    const Token table = ExpectName("a table");
    statement.table = table.text;
    statement.tablePosition = table.position;
}

Assignment Parser::ParseField() {
    Token column = ExpectName("a field");
    Assignment field{column.text, {}, column.position, nullptr};
    if (TakeSymbol('.')) {
        field.table = column.text;
        field.column = ExpectName("a field").text;
    }
    return field;
}

Statement Parse(std::string_view text) {
    return Parser(text).ParseStatement();
}

} // namespace platform::dialect
