#include "core/forms/ProgramLook.h"

#include <QApplication>

#include "core/Preferences.h"
#include "platform/qt/Icons.h"

namespace core::forms {

ProgramLook::ProgramLook(const char* name, const char* icon) {
    QApplication::setApplicationName(QLatin1String(name));
    QApplication::setDesktopFileName(QStringLiteral("vestrel"));
    QApplication::setWindowIcon(platform::qt::LoadIcon(QLatin1String(icon)));
    LoadPreferences();
    platform::qt::ApplyAppearance(platform::qt::Appearance{Preferences().Appearance});
}

} // namespace core::forms
