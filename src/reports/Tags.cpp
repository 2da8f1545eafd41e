#include "reports/Tags.h"

#include <fmt/core.h>

#include "core/SystemTags.h"
#include "platform/values/Text.h"

namespace reports {

void ReplaceTag(std::string& text, std::string_view tag, std::string_view value) {
    if (tag.empty() || text.size() < tag.size()) return;
    std::string out;
    std::size_t kept = 0; // up to where `out` holds the text
    auto at = text.find(tag.front());
    while (at != std::string::npos && at + tag.size() <= text.size()) {
        const std::string_view here = std::string_view(text).substr(at, tag.size());
        if (here == tag || platform::EqualIgnoringCase(here, tag)) {
            out.append(text, kept, at - kept).append(value);
            kept = at + tag.size();
            at = text.find(tag.front(), kept);
        } else {
            at = text.find(tag.front(), at + 1);
        }
    }
    if (kept == 0) return;
    text = out.append(text, kept);
}

void ExpandSystemTags(std::string& text) {
    if (text.find('%') == std::string::npos) return;
    for (const core::SystemTag& tag : core::SystemTags()) {
        const std::string written = fmt::format("%{}%", tag.name);
        if (platform::ContainsIgnoringCase(text, written)) ReplaceTag(text, written, tag.value());
    }
}

std::string TextOf(const platform::Value& value) {
    return value.IsNull() ? std::string() : value.AsText();
}

} // namespace reports
