#include "platform/qt/Text.h"

namespace platform::qt {

QString ToScreen(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromScreen(const QString& text) {
    return text.toStdString();
}

} // namespace platform::qt
