#include "platform/qt/Appearance.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDBusVariant>
#include <QPalette>

#include "platform/qt/ScreenStyle.h"

namespace platform::qt {

namespace {

constexpr uint kPreferDark = 1;
constexpr int kPatienceMs = 500; // a desktop that does not answer must not delay the start

QString Service() {
    return QStringLiteral("org.freedesktop.portal.Desktop");
}
QString Path() {
    return QStringLiteral("/org/freedesktop/portal/desktop");
}
QString Interface() {
    return QStringLiteral("org.freedesktop.portal.Settings");
}
QString Group() {
    return QStringLiteral("org.freedesktop.appearance");
}
QString Key() {
    return QStringLiteral("color-scheme");
}

void SetInk(QPalette& palette, const QColor& ink, const QColor& faded) {
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, faded);
    }
    palette.setColor(QPalette::PlaceholderText, faded);
}

QPalette LightPalette() {
    QPalette palette(QColor(0xEF, 0xEF, 0xEF));
    SetInk(palette, QColor(0x1E, 0x1E, 0x1E), QColor(0x8C, 0x8C, 0x8C));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF6, 0xF7, 0xF8));
    palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE6));
    palette.setColor(QPalette::Highlight, QColor(0x2A, 0x6F, 0xB5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x1A, 0x5F, 0xA8));
    return palette;
}

QPalette DarkPalette() {
    QPalette palette(QColor(0x35, 0x38, 0x3B));
    SetInk(palette, QColor(0xEC, 0xEC, 0xEC), QColor(0x8E, 0x92, 0x96));
    palette.setColor(QPalette::Window, QColor(0x2B, 0x2D, 0x30));
    palette.setColor(QPalette::Base, QColor(0x1F, 0x21, 0x23));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2B));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3A, 0x3D, 0x41));
    palette.setColor(QPalette::Highlight, QColor(0x35, 0x74, 0xB8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7A, 0xB7, 0xF0));
    palette.setColor(QPalette::LinkVisited, QColor(0xB8, 0x9C, 0xE8));
    return palette;
}

struct State {
    Appearance chosen = Appearance::System;
    bool desktopPrefersDark = false;
};

State& Present() {
    static State state;
    return state;
}

/// Uses the system's palette as it is, including coloured and high-contrast ones. Our dark palette
/// replaces it only if it is light although the desktop prefers dark: that platform theme ignores
/// the preference.
void ApplySystemPalette() {
    QApplication::setPalette(QPalette());
    const bool isDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    if (Present().desktopPrefersDark && !isDark) QApplication::setPalette(DarkPalette());
}

} // namespace

void ApplyAppearance(Appearance appearance) {
    Present().chosen = appearance;
    if (dynamic_cast<ScreenStyle*>(QApplication::style()) == nullptr)
        QApplication::setStyle(new ScreenStyle);
    switch (appearance) {
        case Appearance::Light:
            QApplication::setPalette(LightPalette());
            return;
        case Appearance::Dark:
            QApplication::setPalette(DarkPalette());
            return;
        case Appearance::System:
            break;
    }
    ApplySystemPalette();
}

DesktopAppearance::DesktopAppearance() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    uint preference = 0;
    if (bus.isConnected()) {
        QDBusInterface settings(Service(), Path(), Interface(), bus);
        settings.setTimeout(kPatienceMs);
        const QDBusReply<QDBusVariant> reply =
            settings.call(QStringLiteral("Read"), Group(), Key());
        // The portal wraps the value in a second variant.
        if (reply.isValid()) {
            preference = reply.value().variant().value<QDBusVariant>().variant().toUInt();
        }
        bus.connect(Service(), Path(), Interface(), QStringLiteral("SettingChanged"), this,
                    SLOT(SettingChanged(QString, QString, QDBusVariant)));
    }
    Present().desktopPrefersDark = preference == kPreferDark;
    ApplyAppearance(Appearance::System);
}

void DesktopAppearance::SettingChanged(const QString& group, const QString& key,
                                       const QDBusVariant& value) {
    if (group != Group() || key != Key()) return;
    Present().desktopPrefersDark = value.variant().toUInt() == kPreferDark;
    if (Present().chosen == Appearance::System) ApplyAppearance(Appearance::System);
}

} // namespace platform::qt
