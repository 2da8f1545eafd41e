#pragma once

#include <optional>
#include <string>
#include <string_view>

class QObject;

namespace core::binding {

/// The sigils that bind a control to a field, in order of precedence.
inline constexpr std::string_view kSigils = "_#&$@!?*%:";

/// Which field of which table a control shows, and how.
struct Binding {
    char sigil = 0;
    std::string table; ///< empty if the tag is read without tables
    std::string field;
};

/// Returns a control's dynamic property "tag"; empty if it has none.
std::string TagOf(const QObject& control);
void SetTag(QObject& control, std::string_view tag);

/// Reads a tag. Returns nothing if it has fewer than two characters, or if its first character
/// isn't a sigil. With a `table` the name is split at its point, and a tag of another table isn't a
/// binding.
std::optional<Binding> ReadTag(std::string_view tag, std::string_view table);

/// Returns a tag's bare field name: what follows the sigil, and the point if there is one.
std::string FieldOfTag(std::string_view tag);

} // namespace core::binding
