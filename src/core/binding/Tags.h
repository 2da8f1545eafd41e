#pragma once

#include <optional>
#include <string>
#include <string_view>

class QObject;

namespace core::binding {

/// The sigils that bind a control to a field, in the order they are known by.
inline constexpr std::string_view kSigils = "_#&$@!?*%:";

/// Which field of which table a control shows, and how.
struct Binding {
    char sigil = 0;
    std::string table; ///< empty where the tag is read without tables
    std::string field;
};

/// A control's dynamic property "tag"; empty without one.
std::string TagOf(const QObject& control);
void SetTag(QObject& control, std::string_view tag);

/// Nothing for a tag of one character or less, or one whose first character is no sigil. With a
/// `table` the name is parted at its point, and a tag of another table is no binding.
std::optional<Binding> ReadTag(std::string_view tag, std::string_view table);

/// The field's bare name of any tag: behind the sigil, and behind the point if there is one.
std::string FieldOfTag(std::string_view tag);

} // namespace core::binding
