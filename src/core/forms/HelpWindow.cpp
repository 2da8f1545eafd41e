#include <QDir>
#include <QPointer>
#include <QStandardPaths>

#include "core/AppPath.h"
#include "core/forms/Help.h"
#include "core/forms/frmHelp.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"

namespace core::forms {

namespace {

QString CacheFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                           QStringLiteral("/Vestrel");
    QDir().mkpath(folder);
    return folder;
}

void ShowHelpWindow(const QString& topic) {
    static QPointer<frmHelp> window;
    if (!window) {
        const std::filesystem::path file = ShippedPath("help/Vestrel.qch");
        if (file.empty()) {
            platform::TheDialogs().ShowMessage(
                "Help", "The help file is missing. Install Vestrel again to have it back.",
                platform::Icon::Exclamation);
            return;
        }
        window = new frmHelp(platform::qt::ToScreen(file.string()), CacheFolder());
    }
    window->Setup(topic);
}

} // namespace

void RegisterHelpWindow() {
    SetHelpOpener([](QWidget*, const QString& topic) { ShowHelpWindow(topic); });
}

} // namespace core::forms
