#pragma once

#include <string>
#include <string_view>

namespace documents {

/// The format of a template's text, which decides how a value is written into it.
enum class TextKind { Plain, RichText, Html };

/// Returns Rich Text for a text that begins as one whatever the file is called, otherwise by the
/// ending of `path`.
TextKind TextKindOf(std::string_view path, std::string_view text);

/// Returns `value` (UTF-8) as it is written into a text of that kind, so that it reads there as it
/// is: braces, backslashes, line ends and characters beyond ASCII escaped in Rich Text; `&`, `<`,
/// `>` and quotes in HTML; unchanged in plain text. A malformed byte becomes "?" in Rich Text.
std::string EscapedFor(TextKind kind, std::string_view value);

} // namespace documents
