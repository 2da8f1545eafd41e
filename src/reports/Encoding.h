#pragma once

#include <string>
#include <string_view>

namespace reports {

/// Returns true for well-formed UTF-8: no stray bytes, overlong forms or surrogates.
bool IsUtf8(std::string_view text);

/// Returns the UTF-8 of text in Windows-1252; the five bytes without a character there become
/// U+FFFD.
std::string FromWindows1252(std::string_view text);

} // namespace reports
