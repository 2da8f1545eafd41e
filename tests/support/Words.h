#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// The parts of a text between the bars; none for an empty text.
inline std::vector<std::string> Split(std::string_view text, char bar = '|') {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(bar), text.size());
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

} // namespace support
