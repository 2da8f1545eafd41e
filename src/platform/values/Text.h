#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Without blanks at either end.
std::string_view Trim(std::string_view text);

// Upper and lower case of UTF-8 text, letter by letter; bytes that are no UTF-8 stay as they are.
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);

/// Negative, 0 or positive as `a` sorts before, with or after `b` without regard to case.
int CompareIgnoringCase(std::string_view a, std::string_view b);
bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

/// The offset of `part` in `text` at or after `from`, npos if it isn't there. Takes time in
/// proportion to the lengths, whatever the strings hold.
std::size_t FindText(std::string_view text, std::string_view part, std::size_t from = 0);

/// The text with a blank for every line end.
std::string OneLine(std::string_view text);

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The first `count` characters (not bytes) of UTF-8 text.
std::string LeftCharacters(std::string_view text, std::size_t count);

} // namespace platform
