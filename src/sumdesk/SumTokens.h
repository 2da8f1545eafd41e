#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sumdesk/Sum.h"

namespace sumdesk {

enum class TokenKind { Number, Plus, Minus, Times, Divide, Percent, Open, Close, End };

struct Token {
    TokenKind kind = TokenKind::End;
    std::string_view text;
    std::size_t position = 0;
    Exact number; ///< of a Number
};

/// Returns the tokens of a sum, the last one an End. The text must outlive them. Throws SumError
/// for characters that no sum has, and for numbers that can't be read or are too large.
std::vector<Token> TokensOf(std::string_view text, std::span<const Remembered> remembered);

/// Returns the sum with a blank on either side of each operator, and with "×" and "÷" for
/// multiplication and division.
std::string TidyText(std::span<const Token> tokens);

} // namespace sumdesk
