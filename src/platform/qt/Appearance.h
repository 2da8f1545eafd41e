#pragma once

#include <QObject>

class QDBusVariant;

namespace platform::qt {

/// Which colours the program uses, with the values that the preference stores.
enum class Appearance {
    System = 0, ///< the system's palette; dark if the desktop prefers dark and its palette is light
    Light = 1,
    Dark = 2,
};

/// Sets the look of the whole program: one style, and the chosen palette. Any other number than
/// those of Appearance means System.
void ApplyAppearance(Appearance appearance);

/// Follows the desktop's preference for light or dark while Appearance::System is chosen.
class DesktopAppearance : public QObject {
    Q_OBJECT

  public:
    /// Reads the present preference and applies Appearance::System.
    DesktopAppearance();

  private Q_SLOTS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace platform::qt
