#include "sumdesk/Sum.h"

#include "sumdesk/SumTokens.h"

namespace sumdesk {

namespace {

constexpr int kMostBrackets = 100;

/// A part of a sum between + and -.
struct Term {
    Exact number;
    bool isShare = false; ///< a percentage by itself
};

/// Works out the tokens from left to right, a function for each rank of operators.
class Reader {
  public:
    explicit Reader(std::span<const Token> tokens) : tokens_(tokens) {}

    Exact Whole() {
        if (Now().kind == TokenKind::End) {
            throw SumError("Enter a sum first, for example 12 + 3.", Now().position);
        }
        Exact result = Sum();
        if (Now().kind == TokenKind::Close) {
            throw SumError("There is no opening bracket for this one.", Now().position);
        }
        if (Now().kind != TokenKind::End) {
            throw SumError("An operator is missing here.", Now().position);
        }
        return result;
    }

  private:
    const Token& Now() const { return tokens_.front(); }
    Token Take() {
        Token token = tokens_.front();
        tokens_ = tokens_.subspan(1);
        return token;
    }
    static void Check(const Exact& number, const Token& at) {
        if (IsTooLarge(number)) throw SumError("The result is too large.", at.position);
    }

    Exact Sum() {
        Exact total = Product().number;
        while (Now().kind == TokenKind::Plus || Now().kind == TokenKind::Minus) {
            const Token sign = Take();
            Term next = Product();
            if (next.isShare) next.number *= total;
            if (sign.kind == TokenKind::Plus) {
                total += next.number;
            } else {
                total -= next.number;
            }
            Check(total, sign);
        }
        return total;
    }

    Term Product() {
        Term result = Signed();
        while (Now().kind == TokenKind::Times || Now().kind == TokenKind::Divide) {
            const Token sign = Take();
            const Term next = Signed();
            if (sign.kind == TokenKind::Times) {
                result.number *= next.number;
            } else if (next.number == 0) {
                throw SumError("A number can't be divided by zero.", sign.position);
            } else {
                result.number /= next.number;
            }
            result.isShare = false;
            Check(result.number, sign);
        }
        return result;
    }

    Term Signed() {
        bool isNegative = false;
        while (Now().kind == TokenKind::Plus || Now().kind == TokenKind::Minus) {
            if (Take().kind == TokenKind::Minus) isNegative = !isNegative;
        }
        Term term;
        term.number = Operand();
        while (Now().kind == TokenKind::Percent) {
            Take();
            term.number /= 100;
            term.isShare = true;
        }
        if (isNegative) term.number = -term.number;
        return term;
    }

    Exact Operand() {
        if (Now().kind == TokenKind::Number) return Take().number;
        if (Now().kind == TokenKind::End) {
            throw SumError("A number is missing at the end.", Now().position);
        }
        if (Now().kind != TokenKind::Open) {
            throw SumError("A number is missing here.", Now().position);
        }
        const Token open = Take();
        if (++brackets_ > kMostBrackets) {
            throw SumError("There are too many brackets.", open.position);
        }
        Exact inside = Sum();
        --brackets_;
        if (Now().kind == TokenKind::End) {
            throw SumError("A closing bracket is missing.", Now().position);
        }
        if (Now().kind != TokenKind::Close) {
            throw SumError("An operator is missing here.", Now().position);
        }
        Take();
        return inside;
    }

    std::span<const Token> tokens_;
    int brackets_ = 0;
};

} // namespace

SumResult WorkOut(std::string_view text, std::span<const Remembered> remembered) {
    const std::vector<Token> tokens = TokensOf(text, remembered);
    SumResult result;
    result.number = Reader(tokens).Whole();
    result.tidy = TidyText(tokens);
    std::size_t signs = 0;
    while (tokens[signs].kind == TokenKind::Plus || tokens[signs].kind == TokenKind::Minus)
        ++signs;
    result.isPlain = tokens.size() == signs + 2;
    return result;
}

} // namespace sumdesk
