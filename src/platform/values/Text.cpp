#include "platform/values/Text.h"

#include <algorithm>
#include <clocale>
#include <cstring>
#include <cwctype>

namespace platform {

namespace {

constexpr std::string_view kBlanks = " \t\r\n\f\v";
// A byte that isn't UTF-8 counts as this number: above every character, in the order of the bytes.
constexpr char32_t kStrayByte = 0x11'0000;

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return IsAscii(c); });
}

// Takes the next character off the front of `text`, which is not empty.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    std::size_t length = 1;
    char32_t character = lead;
    if (lead >= 0xC2 && lead <= 0xF4) {
        length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        character = lead & (0xFFU >> (length + 1));
    }
    bool valid = lead < 0x80 || (length > 1 && text.size() >= length);
    for (std::size_t i = 1; valid && i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        valid = (next & 0xC0U) == 0x80;
        character = (character << 6) | (next & 0x3FU);
    }
    // Overlong forms, surrogates and numbers beyond Unicode aren't characters either.
    if (valid && length == 3) valid = character >= 0x800 && (character & 0xFFFFF800U) != 0xD800;
    if (valid && length == 4) valid = character >= 0x1'0000 && character < kStrayByte;
    if (!valid) {
        length = 1;
        character = kStrayByte + lead;
    }
    text.remove_prefix(length);
    return character;
}

void PutCharacter(std::string& out, char32_t character) {
    const auto tail = [&](unsigned shift) {
        out += static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
    };
    if (character >= kStrayByte) {
        out += static_cast<char>(character - kStrayByte);
    } else if (character < 0x80) {
        out += static_cast<char>(character);
    } else if (character < 0x800) {
        out += static_cast<char>(0xC0U | (character >> 6));
        tail(0);
    } else if (character < 0x1'0000) {
        out += static_cast<char>(0xE0U | (character >> 12));
        tail(6);
        tail(0);
    } else {
        out += static_cast<char>(0xF0U | (character >> 18));
        tail(12);
        tail(6);
        tail(0);
    }
}

// Returns the letters of all scripts, whatever locale the process runs in; only ASCII if the C
// library lacks them.
locale_t Letters() {
    static const locale_t letters = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return letters;
}

char32_t Lower(char32_t character) {
    if (character < 0x80) {
        return static_cast<unsigned char>(LowerAscii(static_cast<char>(character)));
    }
    if (character >= kStrayByte || Letters() == nullptr) return character;
    return static_cast<char32_t>(towlower_l(static_cast<wint_t>(character), Letters()));
}

char32_t Upper(char32_t character) {
    if (character < 0x80) return character >= 'a' && character <= 'z' ? character - 32 : character;
    if (character >= kStrayByte || Letters() == nullptr) return character;
    return static_cast<char32_t>(towupper_l(static_cast<wint_t>(character), Letters()));
}

template <typename Change>
std::string ChangeLetters(std::string_view text, Change change) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty())
        PutCharacter(out, change(TakeCharacter(text)));
    return out;
}

} // namespace

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string ToUpper(std::string_view text) {
    return ChangeLetters(text, Upper);
}

std::string ToLower(std::string_view text) {
    return ChangeLetters(text, Lower);
}

int CompareIgnoringCase(std::string_view a, std::string_view b) {
    while (!a.empty() && !b.empty()) {
        char32_t left = 0;
        char32_t right = 0;
        if (IsAscii(a.front()) && IsAscii(b.front())) {
            left = static_cast<unsigned char>(LowerAscii(a.front()));
            right = static_cast<unsigned char>(LowerAscii(b.front()));
            a.remove_prefix(1);
            b.remove_prefix(1);
        } else {
            left = Lower(TakeCharacter(a));
            right = Lower(TakeCharacter(b));
        }
        if (left != right) return left < right ? -1 : 1;
    }
    return static_cast<int>(b.empty()) - static_cast<int>(a.empty());
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return CompareIgnoringCase(a, b) == 0;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
    if (!IsAscii(part)) return FindText(ToLower(text), ToLower(part)) != std::string_view::npos;
    const auto same = [](char a, char b) { return LowerAscii(a) == LowerAscii(b); };
    return part.empty() ||
           std::search(text.begin(), text.end(), part.begin(), part.end(), same) != text.end();
}

std::size_t FindText(std::string_view text, std::string_view part, std::size_t from) {
    if (from > text.size()) return std::string_view::npos;
    const std::string_view rest = text.substr(from);
    if (part.empty()) return from;
    const void* found = memmem(rest.data(), rest.size(), part.data(), part.size());
    if (found == nullptr) return std::string_view::npos;
    return static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

std::string OneLine(std::string_view text) {
    std::string line(text);
    std::ranges::replace_if(
        line, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return line;
}

std::string LeftCharacters(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (; count > 0 && !rest.empty(); --count)
        TakeCharacter(rest);
    return std::string(text.substr(0, text.size() - rest.size()));
}

} // namespace platform
