#include "documents/TextKind.h"

#include "platform/printing/RtfText.h"
#include "platform/system/Paths.h"
#include "platform/values/Text.h"

namespace documents {

namespace {

constexpr std::string_view kRichTextStart = "{\\rtf";

std::string Html(std::string_view value) {
    std::string escaped;
    escaped.reserve(value.size());
    for (const char c : value) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            case '\'':
                escaped += "&#39;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

} // namespace

TextKind TextKindOf(std::string_view path, std::string_view text) {
    if (text.starts_with(kRichTextStart)) return TextKind::RichText;
    const std::string_view name = path.substr(platform::PathOf(path).size());
    const std::size_t dot = name.rfind('.');
    const std::string ending =
        dot == std::string_view::npos ? std::string() : platform::ToLower(name.substr(dot + 1));
    if (ending == "rtf") return TextKind::RichText;
    return ending == "htm" || ending == "html" ? TextKind::Html : TextKind::Plain;
}

std::string EscapedFor(TextKind kind, std::string_view value) {
    switch (kind) {
        case TextKind::RichText: {
            std::string escaped;
            platform::AppendRtf(escaped, value);
            return escaped;
        }
        case TextKind::Html:
            return Html(value);
        case TextKind::Plain:
            break;
    }
    return std::string(value);
}

} // namespace documents
