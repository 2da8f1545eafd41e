#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

/// Returns the code point at `position` and moves `position` to the next one; U+FFFD for a byte
/// that isn't UTF-8.
char32_t NextCodePoint(std::string_view text, std::size_t& position);

/// Adds a code point as UTF-8.
void AppendUtf8(std::string& text, char32_t code);

/// Returns true for marks that are drawn with the character before them.
bool IsCombining(char32_t code);

/// Returns true for the letters of scripts written without spaces, between which a line may break.
bool BreaksAnywhere(char32_t code);

/// Returns the length in bytes of the first character together with its combining marks.
std::size_t FirstCluster(std::string_view text);

/// Returns `text` with line ends as "
/// " only, every other control character as a blank, and U+FFFD for every byte that isn't a
/// character. If nothing changes, this is `text` itself; otherwise it is made in `scratch`.
std::string_view CleanText(std::string_view text, std::string& scratch);

} // namespace platform
