#pragma once

#include <string_view>

namespace platform::dialect {

/// Whether a text is like a pattern, without regard to case: `*` or `%` stands for any run of
/// characters, `?` or `_` for one, `#` for one digit, `[a-z]` for one of these, `[!a-z]` for one
/// other than these. A '[' that isn't closed matches itself.
bool MatchesPattern(std::string_view text, std::string_view pattern);

} // namespace platform::dialect
