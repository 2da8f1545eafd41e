#include <QDir>
#include <QFile>
#include <QPointer>
#include <QStandardPaths>

#include "core/Globals.h"
#include "core/forms/Help.h"
#include "core/forms/frmHelp.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"

namespace core::forms {

namespace {

/// In the program's data folder, or beside the program if that can't be written.
QString FindHelpFile() {
    const QString name = QStringLiteral("Vestrel.qch");
    QString besideFiles = platform::qt::ToScreen(App().AppPath) + name;
    if (QFile::exists(besideFiles)) return besideFiles;
    const auto program = platform::ExecutablePath().parent_path();
    return platform::qt::ToScreen(platform::AddBackslash(program.string())) + name;
}

QString CacheFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                           QStringLiteral("/Vestrel");
    QDir().mkpath(folder);
    return folder;
}

void ShowHelpWindow(const QString& topic) {
    static QPointer<frmHelp> window;
    if (!window) {
        const QString file = FindHelpFile();
        if (!QFile::exists(file)) {
            platform::TheDialogs().ShowMessage(
                "Help", "The help file is missing:\n" + platform::qt::FromScreen(file),
                platform::Icon::Exclamation);
            return;
        }
        window = new frmHelp(file, CacheFolder());
    }
    window->Setup(topic);
}

} // namespace

void RegisterHelpWindow() {
    SetHelpOpener([](QWidget*, const QString& topic) { ShowHelpWindow(topic); });
}

} // namespace core::forms
