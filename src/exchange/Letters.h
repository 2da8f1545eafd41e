#pragma once

#include <string>
#include <string_view>

namespace exchange {

bool IsAscii(std::string_view text);
/// Whether the bytes are UTF-8, each letter in its shortest form.
bool IsUtf8Text(std::string_view bytes);
/// The UTF-8 of a text in Latin-1, with the further letters that Windows has in it.
std::string FromLatin1(std::string_view bytes);

} // namespace exchange
