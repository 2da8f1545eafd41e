#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace core::binding {

/// The state of a box that decides about a key press. Positions count characters from 0.
struct KeyedBox {
    std::string_view tag; ///< binding tag; its first character names the filter
    std::u32string_view text;
    std::size_t caret = 0;
    std::size_t selected = 0;  ///< how many characters are selected
    std::size_t maxLength = 0; ///< 0 for no limit
};

inline constexpr char32_t kBackspace = 8;
inline constexpr char32_t kNoKey = 0;

/// Returns the character that a key press types into the box: the key itself, its capital, or
/// kNoKey if the box rejects it.
char32_t FilterKey(const KeyedBox& box, char32_t key);

} // namespace core::binding
