#include "platform/printing/RtfText.h"

#include <fmt/core.h>

#include <cstdint>

#include "platform/printing/Unicode.h"

namespace platform {

namespace {

void AppendUnit(std::string& out, char32_t unit) {
    out += fmt::format("\\u{}?", static_cast<std::int16_t>(unit));
}

} // namespace

void AppendRtf(std::string& out, std::string_view text) {
    std::string cleaned;
    text = CleanText(text, cleaned);
    for (std::size_t at = 0; at < text.size();) {
        const char32_t code = NextCodePoint(text, at);
        if (code == '\n') {
            out += "\\line ";
        } else if (code == '\\' || code == '{' || code == '}') {
            out += '\\';
            out += static_cast<char>(code);
        } else if (code < 0x80) {
            out += static_cast<char>(code);
        } else if (code < 0x10000) {
            AppendUnit(out, code);
        } else {
            AppendUnit(out, 0xD800 + ((code - 0x10000) >> 10U));
            AppendUnit(out, 0xDC00 + ((code - 0x10000) & 0x3FFU));
        }
    }
}

void AppendRtfWithPageNumber(std::string& out, std::string_view text) {
    for (auto mark = text.find("%d"); mark != std::string_view::npos; mark = text.find("%d")) {
        AppendRtf(out, text.substr(0, mark));
        out += "{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}";
        text.remove_prefix(mark + 2);
    }
    AppendRtf(out, text);
}

void AppendRtfName(std::string& out, std::string_view name) {
    for (const char c : name) {
        if (c >= 0x20 && c < 0x7F && c != ';' && c != '{' && c != '}' && c != '\\') out += c;
    }
}

} // namespace platform
