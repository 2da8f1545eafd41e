#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

/// The code point at `position`, which moves to the next one; U+FFFD for a byte that isn't UTF-8.
char32_t NextCodePoint(std::string_view text, std::size_t& position);

/// Adds a code point as UTF-8.
void AppendUtf8(std::string& text, char32_t code);

/// True for marks that are drawn with the character before them.
bool IsCombining(char32_t code);

/// True for the letters of scripts written without spaces, between which a line may break.
bool BreaksAnywhere(char32_t code);

/// The length in bytes of the first character together with its combining marks.
std::size_t FirstCluster(std::string_view text);

/// `text` with line ends as "\n" only, every other control character as a blank, and U+FFFD for
/// what isn't a character. Where nothing changes it is `text` itself, otherwise it is held in
/// `scratch`.
std::string_view CleanText(std::string_view text, std::string& scratch);

} // namespace platform
