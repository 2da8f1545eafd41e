#pragma once

#include <string>
#include <string_view>

#include "platform/values/Value.h"

namespace core {

/// How the cells of a column are shown.
struct ColumnFormat {
    enum class Kind {
        Plain,
        Pattern,
        Exact, ///< a pattern on all digits of a number, not only on those that it shows
        YesNo,
    };

    Kind kind = Kind::Plain;
    std::string pattern; ///< a format of platform::Format
    bool right = false;  ///< numbers are aligned right
};

/// Returns the format of a column by its field's type and its caption: money, days, flags and
/// fractions have a format, the caption "I Rate" has its own; anything else is shown as it is.
ColumnFormat FormatOf(platform::FieldType type, std::string_view caption);

/// Returns a cell's text; one blank for a null. A text that the pattern doesn't suit is unchanged.
std::string CellText(const platform::Value& value, const ColumnFormat& format);

} // namespace core
