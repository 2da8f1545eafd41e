#pragma once

#include <string_view>

namespace store {

/// Returns how many characters a list leaves room for in a text field of a table, 255 if it may be
/// long and for a field that isn't a text of the books. What is stored may be longer, and is kept
/// whole.
int TextSizeOf(std::string_view table, std::string_view field);

} // namespace store
