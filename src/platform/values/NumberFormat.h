#pragma once

#include <string>
#include <string_view>

#include "platform/values/Digits.h"

namespace platform {

/// Returns the section with this index, counted from 0, of the sections that `;` separates; empty
/// if there are fewer. A `;` in quotes or after a backslash doesn't separate.
std::string_view FormatSection(std::string_view format, int index);

/// Returns the format that a name such as "Fixed" means; any other format is returned unchanged.
std::string_view NamedFormat(std::string_view format);

/// Returns true if the section shows digits, that is, if it holds `0` or `#` outside quotes.
bool ShowsDigits(std::string_view section);

/// Formats a number by a number format, as FormatNumber describes.
std::string FormatDigits(const Digits& number, std::string_view format);

} // namespace platform
