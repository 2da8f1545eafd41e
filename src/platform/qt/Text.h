#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace platform::qt {

/// UTF-8, as the logic holds text, for the screen; bytes that are no UTF-8 show as U+FFFD.
QString ToScreen(std::string_view text);
/// The screen's text as UTF-8.
std::string FromScreen(const QString& text);

} // namespace platform::qt
