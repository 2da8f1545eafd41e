#include "support/screens/Gallery.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPixmap>

#include "core/binding/Binding.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/Text.h"
#include "support/screens/Driving.h"

namespace support {

namespace {

void Save(QWidget& screen, const QString& folder, const std::string& name) {
    const QString path = QStringLiteral(VESTREL_GALLERY "/") + folder;
    QDir().mkpath(path);
    SettleEvents();
    screen.grab().save(path + QLatin1Char('/') + platform::qt::ToScreen(name) +
                       QStringLiteral(".png"));
}

} // namespace

std::vector<std::string> Portray(QWidget& screen, const std::string& name) {
    using platform::qt::Appearance;
    Save(screen, QStringLiteral("light"), name);
    platform::qt::ApplyAppearance(Appearance::Dark);
    Save(screen, QStringLiteral("dark"), name);
    platform::qt::ApplyAppearance(Appearance::Light);

    std::vector<std::string> faults;
    for (const QWidget* const control : core::binding::ControlsOf(screen)) {
        if (!control->isVisible()) continue;
        const auto* const label = qobject_cast<const QLabel*>(control);
        if (label && label->wordWrap()) continue;
        const QSize wanted = control->minimumSizeHint();
        if (control->width() < wanted.width() || control->height() < wanted.height()) {
            faults.push_back(platform::qt::FromScreen(control->objectName()) + " is cut off");
        }
    }
    return faults;
}

} // namespace support
