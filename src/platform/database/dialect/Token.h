#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace platform::dialect {

enum class TokenKind { Name, QuotedName, Number, Text, Date, Parameter, Symbol, End };

/// A token of a statement. `text` is without its delimiters: a name's brackets, a text's quotes
/// (doubled quotes inside stay doubled), a date's hashes.
struct Token {
    TokenKind kind = TokenKind::End;
    std::string_view text;
    /// Offset in the statement, from 0.
    std::size_t position = 0;
    /// The quote character of a text literal.
    char quote = '\0';
};

/// Splits a statement into tokens; the last one is End. Throws DialectError for a text, name or
/// date that isn't closed, and for a character that no statement can contain.
std::vector<Token> Tokenize(std::string_view statement);

/// Throws a DialectError for `statement` at `position`; its message ends with "(line L, column C)",
/// columns counted in characters.
[[noreturn]] void ThrowFault(std::string_view statement, std::size_t position,
                             std::string_view message);

} // namespace platform::dialect
