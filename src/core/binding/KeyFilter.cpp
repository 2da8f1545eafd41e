#include "core/binding/KeyFilter.h"

#include <optional>

#include "platform/values/Conversions.h"

namespace core::binding {

namespace {

bool IsDigit(char32_t key) {
    return key >= U'0' && key <= U'9';
}

std::optional<std::size_t> PointAt(std::u32string_view text) {
    const std::size_t at = text.find(U'.');
    if (at == std::u32string_view::npos) return std::nullopt;
    return at;
}

/// Accepts digits and one point; `decimals` is the number of digits that may follow the point.
bool NumberTakes(const KeyedBox& box, char32_t key, std::optional<std::size_t> decimals) {
    const auto point = PointAt(box.text);
    if (key == U'.') return !point;
    if (!IsDigit(key)) return false;
    return !decimals || !point || box.caret < *point + 1 + *decimals;
}

/// Accepts a digit if it could also be typed at the end of the text, wherever the caret is, so 10
/// takes a 0 but not a 1.
bool PercentTakes(const KeyedBox& box, char32_t key) {
    if (key == U'.') return !PointAt(box.text);
    if (!IsDigit(key)) return false;
    std::string tried;
    for (const char32_t character : box.text) {
        if (character >= 0x80) return false;
        tried += static_cast<char>(character);
    }
    tried += static_cast<char>(key);
    const auto number = platform::TryParseNumber(tried);
    return number && *number <= 100;
}

} // namespace

char32_t FilterKey(const KeyedBox& box, char32_t key) {
    if (key == kBackspace) return key;
    if (box.selected == 0 && box.maxLength != 0 && box.text.size() >= box.maxLength) return kNoKey;

    const auto passIf = [key](bool takes) { return takes ? key : kNoKey; };
    switch (box.tag.empty() ? '\0' : box.tag.front()) {
        case '#':
            return passIf(NumberTakes(box, key, std::nullopt));
        case '$':
            return passIf(NumberTakes(box, key, 2));
        case '&':
            return passIf(NumberTakes(box, key, 1));
        case '%':
            return passIf(PercentTakes(box, key));
        case '^':
            return kNoKey;
        case '@':
            return passIf(IsDigit(key) || key == U'/');
        case '-':
            if (key >= U'a' && key <= U'z') return key - U'a' + U'A';
            return passIf(key >= U'A' && key <= U'Z');
        default:
            return key;
    }
}

} // namespace core::binding
