#pragma once

#include <string_view>

namespace platform::dialect {

/// Returns true if the text matches the pattern, ignoring case: `*` or `%` matches any number of
/// characters, `?` or `_` one character, `#` one digit, `[a-z]` one character in the set, `[!a-z]`
/// one that isn't in it. A '[' without ']' matches itself.
bool MatchesPattern(std::string_view text, std::string_view pattern);

} // namespace platform::dialect
