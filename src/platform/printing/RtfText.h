#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Adds a text with braces, backslashes and every non-ASCII character escaped; line ends become
/// line breaks.
void AppendRtf(std::string& out, std::string_view text);

/// Does the same, with each "%d" as a field that shows the page's number.
void AppendRtfWithPageNumber(std::string& out, std::string_view text);

/// Adds a font's name without the characters that the font table can't hold.
void AppendRtfName(std::string& out, std::string_view name);

} // namespace platform
