#include "exchange/Letters.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace exchange {

namespace {

/// The characters that Windows uses in place of the control characters 0x80 to 0x9F.
constexpr std::array<std::uint16_t, 32> kWindowsLetters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::size_t AsciiLength(std::string_view text) {
    std::size_t at = 0;
    for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + at, sizeof word);
        if ((word & 0x8080'8080'8080'8080U) != 0) break;
    }
    while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80)
        ++at;
    return at;
}

/// Returns the length of the multi-byte character at the start of `text`; 0 if it is malformed.
std::size_t LetterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char first = byte(0);
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) return 0;
    }
    const unsigned char second = byte(1);
    const bool isTooLong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool isNoLetter = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
    return isTooLong || isNoLetter ? 0 : length;
}

void AppendUtf8(std::string& text, std::uint16_t letter) {
    if (letter < 0x80) {
        text += static_cast<char>(letter);
        return;
    }
    if (letter < 0x800) {
        text += static_cast<char>(0xC0U | (letter >> 6U));
    } else {
        text += static_cast<char>(0xE0U | (letter >> 12U));
        text += static_cast<char>(0x80U | ((letter >> 6U) & 0x3FU));
    }
    text += static_cast<char>(0x80U | (letter & 0x3FU));
}

} // namespace

bool IsAscii(std::string_view text) {
    return AsciiLength(text) == text.size();
}

bool IsUtf8Text(std::string_view bytes) {
    for (;;) {
        bytes.remove_prefix(AsciiLength(bytes));
        if (bytes.empty()) return true;
        const std::size_t length = LetterLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
}

std::string FromLatin1(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isWindows = byte >= 0x80 && byte < 0xA0;
        AppendUtf8(text, isWindows ? kWindowsLetters.at(byte - 0x80U) : byte);
    }
    return text;
}

} // namespace exchange
