#include <algorithm>

#include <fmt/core.h>

#include "platform/database/dialect/Token.h"
#include "platform/values/Text.h"

namespace platform::dialect {

namespace {

// Letters beyond ASCII can be part of a name too.
bool IsNameStart(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

bool IsNamePart(char c) {
    return IsNameStart(c) || IsDigit(c) || c == '$';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

class Tokenizer {
  public:
    explicit Tokenizer(std::string_view statement) : text_(statement) {}

    std::vector<Token> Run() {
        // The engine would take a zero byte for the end of the statement.
        const std::size_t zero = text_.find('\0');
        if (zero != std::string_view::npos) ThrowFault(text_, zero, "Unexpected zero byte");
        tokens_.reserve(text_.size() / 4 + 2);
        while (true) {
            while (at_ < text_.size() && IsBlank(text_[at_]))
                ++at_;
            if (at_ == text_.size()) break;
            Next();
        }
        tokens_.push_back({TokenKind::End, {}, text_.size(), '\0'});
        return std::move(tokens_);
    }

  private:
    void Next() {
        const char c = text_[at_];
        if (IsNameStart(c)) return Add(TokenKind::Name, LengthOfName());
        if (IsDigit(c) || (c == '.' && at_ + 1 < text_.size() && IsDigit(text_[at_ + 1]))) {
            return AddNumber();
        }
        switch (c) {
            case '[':
                return AddEnclosed(TokenKind::QuotedName, ']', "A name's '[' has no ']'");
            case '\'':
            case '"':
                return AddText(c);
            case '#':
                return AddEnclosed(TokenKind::Date, '#', "A date's '#' has no second one");
            case '?':
                return Add(TokenKind::Parameter, 1);
            default:
                return AddSymbol();
        }
    }

    void Add(TokenKind kind, std::size_t length) {
        tokens_.push_back({kind, text_.substr(at_, length), at_, '\0'});
        at_ += length;
    }

    void AddNumber() {
        const std::size_t length = LengthOfNumber();
        const std::size_t end = at_ + length;
        if (end < text_.size() && IsNameStart(text_[end])) {
            ThrowFault(text_, at_, "A number contains letters");
        }
        Add(TokenKind::Number, length);
    }

    std::size_t LengthOfName() const {
        std::size_t end = at_;
        while (end < text_.size() && IsNamePart(text_[end]))
            ++end;
        return end - at_;
    }

    std::size_t LengthOfNumber() const {
        std::size_t end = at_;
        const auto skipDigits = [&] {
            while (end < text_.size() && IsDigit(text_[end]))
                ++end;
        };
        skipDigits();
        if (end < text_.size() && text_[end] == '.') {
            ++end;
            skipDigits();
        }
        if (end < text_.size() && (text_[end] == 'e' || text_[end] == 'E')) {
            std::size_t exponent = end + 1;
            if (exponent < text_.size() && (text_[exponent] == '+' || text_[exponent] == '-')) {
                ++exponent;
            }
            if (exponent < text_.size() && IsDigit(text_[exponent])) {
                end = exponent;
                skipDigits();
            }
        }
        return end - at_;
    }

    void AddEnclosed(TokenKind kind, char close, std::string_view unclosed) {
        const std::size_t end = text_.find(close, at_ + 1);
        if (end == std::string_view::npos) ThrowFault(text_, at_, unclosed);
        if (end == at_ + 1) ThrowFault(text_, at_, "There is nothing between the delimiters");
        tokens_.push_back({kind, text_.substr(at_ + 1, end - at_ - 1), at_, '\0'});
        at_ = end + 1;
    }

    void AddText(char quote) {
        std::size_t end = text_.find(quote, at_ + 1);
        // A doubled quote is a quote of the text.
        while (end != std::string_view::npos && end + 1 < text_.size() && text_[end + 1] == quote)
            end = text_.find(quote, end + 2);
        if (end == std::string_view::npos) ThrowFault(text_, at_, "A text has no closing quote");
        tokens_.push_back({TokenKind::Text, text_.substr(at_ + 1, end - at_ - 1), at_, quote});
        at_ = end + 1;
    }

    void AddSymbol() {
        constexpr std::string_view kPairs[] = {"<=", ">=", "<>", "!="};
        const std::string_view pair = text_.substr(at_, 2);
        if (std::ranges::find(kPairs, pair) != std::end(kPairs)) return Add(TokenKind::Symbol, 2);
        constexpr std::string_view kSymbols = "=<>+-*/\\^&(),.;";
        if (kSymbols.find(text_[at_]) == std::string_view::npos) {
            ThrowFault(text_, at_, fmt::format("Unexpected '{}'", text_[at_]));
        }
        Add(TokenKind::Symbol, 1);
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::vector<Token> tokens_;
};

} // namespace

std::vector<Token> Tokenize(std::string_view statement) {
    return Tokenizer(statement).Run();
}

} // namespace platform::dialect
