#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace platform::dialect {

enum class TokenKind { Name, QuotedName, Number, Text, Date, Parameter, Symbol, End };

/// A word of a statement. `text` is without the marks around it: the brackets of a name, the quotes
/// of a text (those doubled inside stay doubled), the hashes of a date.
struct Token {
    TokenKind kind = TokenKind::End;
    std::string_view text;
    /// 0-based offset in the statement.
    std::size_t position = 0;
    /// The quote of a text.
    char quote = '\0';
};

/// Splits a statement into its words; the last is an End. Throws DialectError for a text, name or
/// date that isn't closed and for a letter that no statement has.
std::vector<Token> Tokenize(std::string_view statement);

/// A fault in `statement` at `position`, its message ended by "(line L, column C)"; columns count
/// characters.
[[noreturn]] void ThrowFault(std::string_view statement, std::size_t position,
                             std::string_view message);

} // namespace platform::dialect
