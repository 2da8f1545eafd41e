#include "reports/Encoding.h"

#include <array>
#include <cstdint>

namespace reports {

namespace {

/// The characters of the bytes 0x80 to 0x9F; every other byte is its own code.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

bool IsTail(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

/// Returns the length in bytes of the first character of `text`; 0 if it isn't well-formed.
std::size_t CharacterLength(std::string_view text) {
    const auto at = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = at(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lead < 0xC2   ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsTail(text[i])) return 0;
    }
    const unsigned second = at(1);
    if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F)) return 0;
    if ((lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F)) return 0;
    return length;
}

} // namespace

bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string FromWindows1252(std::string_view text) {
    std::string out;
    out.reserve(text.size() + text.size() / 8);
    for (const char byte : text) {
        std::uint32_t code = static_cast<unsigned char>(byte);
        if (code >= 0x80 && code < 0xA0) code = kUpperControls.at(code - 0x80);
        if (code < 0x80) {
            out += static_cast<char>(code);
        } else if (code < 0x800) {
            out += static_cast<char>(0xC0U | (code >> 6U));
            out += static_cast<char>(0x80U | (code & 0x3FU));
        } else {
            out += static_cast<char>(0xE0U | (code >> 12U));
            out += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
            out += static_cast<char>(0x80U | (code & 0x3FU));
        }
    }
    return out;
}

} // namespace reports
