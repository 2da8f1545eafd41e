#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace documents {

/// The tags of a template that a merge would leave in the letter.
struct TemplateFaults {
    /// Names that no record of the template's kinds can fill, and system tags that don't exist.
    std::vector<std::string> unknown;
    /// Names that formatting codes of a word processor stand within, so that the tag isn't found.
    std::vector<std::string> torn;
};

/// Checks a template's text against the fields of the kinds that it is offered for. A name is
/// listed once, in the order of the text. Throws if a kind's fields can't be read.
TemplateFaults CheckTemplate(std::string_view path, std::string_view text,
                             std::span<const std::int16_t> kinds);

/// Returns the text that a Rich Text shows, without its formatting: enough of it to find tags.
std::string PlainTextOfRtf(std::string_view text);

} // namespace documents
