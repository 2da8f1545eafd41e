#pragma once

#include <string_view>

namespace platform {

/// Returns true for a text that would be misread in two lines: an amount, or a day "05/17/2024".
bool StaysInOneLine(std::string_view text);

} // namespace platform
