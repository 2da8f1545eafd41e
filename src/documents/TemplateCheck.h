#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/RecordKinds.h"

namespace documents {

/// The tags of a template that a merge would leave in the letter.
struct TemplateFaults {
    /// Names that aren't fields of any of the template's kinds, and system tags that don't exist.
    std::vector<std::string> unknown;
    /// Names with a word processor's formatting codes inside, which keep the tag from being found.
    std::vector<std::string> torn;
};

/// Checks a template's text against the fields of the kinds it is offered for. Each name is listed
/// once, in the order of the text. Throws if a kind's fields can't be read.
TemplateFaults CheckTemplate(std::string_view path, std::string_view text,
                             std::span<const core::RecordKind> kinds);

/// Returns the text of a Rich Text document without its formatting, well enough to find tags in it.
std::string PlainTextOfRtf(std::string_view text);

} // namespace documents
