#pragma once

#include <QObject>

class QDBusVariant;

namespace platform::qt {

enum class Appearance { Light, Dark };

/// The look of the whole program: one style, and a palette that is ours or the desktop's.
void ApplyAppearance(Appearance appearance);

/// Keeps the look in step with the desktop's light or dark setting, as it is and as it changes.
class DesktopAppearance : public QObject {
    Q_OBJECT

  public:
    /// Takes over the present setting; light where the desktop has none.
    DesktopAppearance();

  private Q_SLOTS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace platform::qt
