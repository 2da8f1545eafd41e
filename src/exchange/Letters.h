#pragma once

#include <string>
#include <string_view>

namespace exchange {

bool IsAscii(std::string_view text);
/// Returns whether the bytes are valid UTF-8, without overlong forms.
bool IsUtf8Text(std::string_view bytes);
/// Returns the UTF-8 of Latin-1 text, including the characters that Windows adds to Latin-1.
std::string FromLatin1(std::string_view bytes);

} // namespace exchange
