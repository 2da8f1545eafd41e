#pragma once

#include <string_view>

namespace support {

/// Whether a text is what a pattern says, in which an ellipsis stands for any text, of several
/// lines too.
inline bool Matches(std::string_view text, std::string_view pattern) {
    constexpr std::string_view kAnyText = "\u2026";
    const std::size_t open = pattern.find(kAnyText);
    if (open == std::string_view::npos) return text == pattern;
    if (!text.starts_with(pattern.substr(0, open))) return false;
    pattern.remove_prefix(open + kAnyText.size());
    for (text.remove_prefix(open);; text.remove_prefix(1)) {
        if (Matches(text, pattern)) return true;
        if (text.empty()) return false;
    }
}

} // namespace support
