#pragma once

#include <string>
#include <string_view>

namespace documents {

/// The format of a template's text, which decides how a value is written into it.
enum class TextKind { Plain, RichText, Html };

/// Returns RichText if the text begins like Rich Text, whatever the file's name; otherwise decides
/// by the extension of `path`.
TextKind TextKindOf(std::string_view path, std::string_view text);

/// Returns `value` (UTF-8) escaped so that it reads as itself in that kind of text: braces,
/// backslashes, line ends and non-ASCII characters in Rich Text; `&`, `<`, `>` and quotes in HTML;
/// nothing in plain text. A malformed byte becomes "?" in Rich Text.
std::string EscapedFor(TextKind kind, std::string_view value);

} // namespace documents
