#include "sumdesk/SumTokens.h"

#include <algorithm>
#include <array>
#include <utility>

#include "sumdesk/Exact.h"

namespace sumdesk {

namespace {

constexpr std::string_view kNumberCharacters = "0123456789.,$";

constexpr std::array<std::pair<std::string_view, TokenKind>, 13> kSigns = {
    {{"+", TokenKind::Plus},
     {"-", TokenKind::Minus},
     {"\u2212", TokenKind::Minus},
     {"*", TokenKind::Times},
     {"\u00D7", TokenKind::Times},
     {"x", TokenKind::Times},
     {"X", TokenKind::Times},
     {"/", TokenKind::Divide},
     {"\u00F7", TokenKind::Divide},
     {":", TokenKind::Divide},
     {"%", TokenKind::Percent},
     {"(", TokenKind::Open},
     {")", TokenKind::Close}}};

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Returns the whole UTF-8 character at the front of a text that isn't empty.
std::string_view FirstCharacter(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        ++length;
    return text.substr(0, length);
}

Exact NumberOf(std::string_view text, std::size_t position,
               std::span<const Remembered> remembered) {
    const auto known =
        std::ranges::find_if(remembered, [&](const auto& one) { return one.shown == text; });
    if (known != remembered.end()) return known->number;
    const auto digits = platform::ScanDigits(text);
    if (!digits) throw SumError("\"" + std::string(text) + "\" is not a number.", position);
    if (digits->pointAt > kMostWholeDigits) throw SumError("The number is too large.", position);
    return ExactOf(*digits);
}

/// Returns whether an operator that follows a token of this kind joins two numbers, rather than
/// being the sign of the second.
bool EndsNumber(TokenKind kind) {
    return kind == TokenKind::Number || kind == TokenKind::Close || kind == TokenKind::Percent;
}

std::string_view TidySign(const Token& token) {
    switch (token.kind) {
        case TokenKind::Minus:
            return "-";
        case TokenKind::Times:
            return "\u00D7";
        case TokenKind::Divide:
            return "\u00F7";
        default:
            return token.text;
    }
}

} // namespace

std::vector<Token> TokensOf(std::string_view text, std::span<const Remembered> remembered) {
    std::size_t end = text.size();
    while (end > 0 && IsBlank(text[end - 1]))
        --end;
    if (end > 0 && text[end - 1] == '=') --end;
    text = text.substr(0, end);

    std::vector<Token> tokens;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view rest = text.substr(at);
        if (IsBlank(rest.front())) {
            ++at;
            continue;
        }
        Token& token = tokens.emplace_back();
        token.position = at;
        const auto sign = std::ranges::find_if(
            kSigns, [&](const auto& one) { return rest.starts_with(one.first); });
        if (sign != kSigns.end()) {
            token.kind = sign->second;
            token.text = rest.substr(0, sign->first.size());
        } else if (kNumberCharacters.find(rest.front()) != std::string_view::npos) {
            token.kind = TokenKind::Number;
            token.text = rest.substr(0, rest.find_first_not_of(kNumberCharacters));
            token.number = NumberOf(token.text, at, remembered);
        } else {
            throw SumError("\"" + std::string(FirstCharacter(rest)) + "\" can't be used in a sum.",
                           at);
        }
        at += token.text.size();
    }
    tokens.emplace_back().position = text.size();
    return tokens;
}

std::string TidyText(std::span<const Token> tokens) {
    std::string tidy;
    TokenKind before = TokenKind::End;
    for (const Token& token : tokens) {
        const bool isOperator = token.kind == TokenKind::Plus || token.kind == TokenKind::Minus ||
                                token.kind == TokenKind::Times || token.kind == TokenKind::Divide;
        const bool isBetween = isOperator && EndsNumber(before);
        if (isBetween) tidy += ' ';
        tidy += TidySign(token);
        if (isBetween) tidy += ' ';
        before = token.kind;
    }
    return tidy;
}

} // namespace sumdesk
