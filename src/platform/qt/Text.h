#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace platform::qt {

/// Converts UTF-8, as the logic holds text, for the screen; invalid bytes show as U+FFFD.
QString ToScreen(std::string_view text);
/// Converts the screen's text to UTF-8.
std::string FromScreen(const QString& text);

} // namespace platform::qt
