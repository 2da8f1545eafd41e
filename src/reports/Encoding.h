#pragma once

#include <string>
#include <string_view>

namespace reports {

/// True for well-formed UTF-8: no stray bytes, overlong forms or surrogates.
bool IsUtf8(std::string_view text);

/// The UTF-8 form of a text whose bytes are characters of Windows-1252; the five bytes without a
/// character there become U+FFFD.
std::string FromWindows1252(std::string_view text);

} // namespace reports
