#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Returns the text without blanks at either end.
std::string_view Trim(std::string_view text);

// Return UTF-8 text in upper and in lower case, letter by letter; bytes that aren't UTF-8 stay as
// they are.
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

/// Compares two texts, ignoring case: returns a negative number, 0 or a positive number as `a`
/// sorts before, with or after `b`.
int CompareIgnoringCase(std::string_view a, std::string_view b);
bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

/// Returns the offset of `part` in `text` at or after `from`; npos if it isn't there. The time it
/// takes is in proportion to the lengths, whatever the texts hold.
std::size_t FindText(std::string_view text, std::string_view part, std::size_t from = 0);

/// Returns the text with a blank for every line end.
std::string OneLine(std::string_view text);

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Returns the first `count` characters (not bytes) of UTF-8 text.
std::string LeftCharacters(std::string_view text, std::size_t count);

} // namespace platform
