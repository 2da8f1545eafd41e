#pragma once

#include <string>
#include <string_view>

#include "platform/values/Digits.h"

namespace platform {

/// The `index`th of the sections that `;` separates, 0 the first; empty if there are fewer. A `;`
/// in quotes or after a backslash parts nothing.
std::string_view FormatSection(std::string_view format, int index);

/// The format of a name such as "Fixed", else the format itself.
std::string_view NamedFormat(std::string_view format);

/// True when the section shows digits, that is, holds `0` or `#` outside quotes.
bool ShowsDigits(std::string_view section);

/// A number by a number format, as FormatNumber describes.
std::string FormatDigits(const Digits& number, std::string_view format);

} // namespace platform
