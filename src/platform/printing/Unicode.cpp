#include "platform/printing/Unicode.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Range {
    char32_t first;
    char32_t last;
};

template <std::size_t N>
bool IsIn(const std::array<Range, N>& ranges, char32_t code) {
    return std::ranges::any_of(
        ranges, [code](const Range& range) { return code >= range.first && code <= range.last; });
}

bool IsControl(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

bool IsNoCharacter(char32_t code) {
    return (code & 0xFFFEU) == 0xFFFE || (code >= 0xFDD0 && code <= 0xFDEF);
}

} // namespace

char32_t NextCodePoint(std::string_view text, std::size_t& position) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned lead = byte(position++);
    if (lead < 0x80U) return lead;
    const std::size_t more = lead >= 0xF0U ? 3 : lead >= 0xE0U ? 2 : 1;
    if (lead < 0xC2U || lead > 0xF4U || text.size() - position < more) return kReplacement;
    char32_t code = lead & (0x3FU >> more);
    for (std::size_t i = 0; i < more; ++i) {
        if ((byte(position + i) & 0xC0U) != 0x80U) return kReplacement;
        code = code << 6U | (byte(position + i) & 0x3FU);
    }
    static constexpr std::array<char32_t, 4> kLeast = {0, 0x80, 0x800, 0x10000};
    if (code < kLeast[more] || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        return kReplacement;
    }
    position += more;
    return code;
}

void AppendUtf8(std::string& text, char32_t code) {
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) return add(code);
    if (code < 0x800) {
        add(0xC0 | code >> 6U);
    } else if (code < 0x10000) {
        add(0xE0 | code >> 12U);
        add(0x80 | (code >> 6U & 0x3FU));
    } else {
        add(0xF0 | code >> 18U);
        add(0x80 | (code >> 12U & 0x3FU));
        add(0x80 | (code >> 6U & 0x3FU));
    }
    add(0x80 | (code & 0x3FU));
}

bool IsCombining(char32_t code) {
    static constexpr std::array<Range, 22> kMarks = {
        {{0x300, 0x36F},     {0x483, 0x489},    {0x591, 0x5BD},   {0x5BF, 0x5C7},
         {0x610, 0x61A},     {0x64B, 0x65F},    {0x670, 0x670},   {0x6D6, 0x6ED},
         {0x900, 0x903},     {0x93A, 0x94F},    {0x981, 0x983},   {0x9BC, 0x9CD},
         {0xE31, 0xE3A},     {0xE47, 0xE4E},    {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},
         {0x200D, 0x200D},   {0x20D0, 0x20FF},  {0x302A, 0x302F}, {0xFE00, 0xFE2F},
         {0x1F3FB, 0x1F3FF}, {0xE0100, 0xE01EF}}};
    return code >= 0x300 && IsIn(kMarks, code);
}

bool BreaksAnywhere(char32_t code) {
    static constexpr std::array<Range, 5> kScripts = {
        {{0xE01, 0xE3A}, {0x2E80, 0x9FFF}, {0xF900, 0xFAFF}, {0xFF00, 0xFFEF}, {0x20000, 0x3FFFF}}};
    return code >= 0xE01 && IsIn(kScripts, code);
}

std::size_t FirstCluster(std::string_view text) {
    if (text.empty()) return 0;
    std::size_t end = 0;
    char32_t last = NextCodePoint(text, end);
    while (end < text.size()) {
        std::size_t next = end;
        const char32_t code = NextCodePoint(text, next);
        if (!IsCombining(code) && last != 0x200D) break;
        last = code;
        end = next;
    }
    return end;
}

std::string_view CleanText(std::string_view text, std::string& scratch) {
    const auto isPlain = [](char c) { return (c >= 0x20 && c < 0x7F) || c == '\n'; };
    const auto firstOdd = std::ranges::find_if_not(text, isPlain);
    if (firstOdd == text.end()) return text;

    scratch.assign(text.begin(), firstOdd);
    auto at = static_cast<std::size_t>(firstOdd - text.begin());
    while (at < text.size()) {
        if (const char32_t code = NextCodePoint(text, at); code == '\r') {
            if (at == text.size() || text[at] != '\n') scratch += '\n';
        } else if (code != '\n' && IsControl(code)) {
            scratch += ' ';
        } else {
            AppendUtf8(scratch, IsNoCharacter(code) ? kReplacement : code);
        }
    }
    return scratch == text ? text : scratch;
}

} // namespace platform
