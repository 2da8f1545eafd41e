#include "platform/qt/PressGuard.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPointer>

namespace platform::qt {

namespace {

bool TakesEveryPress(const QAbstractButton& button) {
    if (button.isCheckable() || button.autoRepeat()) return true;
    if (button.objectName().startsWith(QLatin1String("qt_"))) return true; // of the calendar
    for (const QWidget* at = &button; at != nullptr; at = at->parentWidget())
        if (at->property(kTakesEveryPress).toBool()) return true;
    return false;
}

bool IsGuardedButton(const QObject& watched) {
    const auto* const button = qobject_cast<const QAbstractButton*>(&watched);
    return button != nullptr && !TakesEveryPress(*button);
}

/// Returns whether a key that stays down would give the same command again: to the default button
/// of a dialog, or to the row that a list has moved on to.
bool RepeatsCommand(const QObject& watched, int key) {
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (qobject_cast<const QDialog*>(&watched) || qobject_cast<const QAbstractButton*>(&watched))
        return isEnter;
    if (!qobject_cast<const QAbstractItemView*>(&watched)) return false;
    return isEnter || key == Qt::Key_Delete || key == Qt::Key_Insert || key == Qt::Key_F2;
}

class PressGuard : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!IsSecondPress(*watched, *event)) return false;
        event->accept();
        return true;
    }

  private:
    bool IsSecondPress(const QObject& watched, const QEvent& event) {
        switch (event.type()) {
            case QEvent::MouseButtonDblClick:
                // The release that follows doesn't click, because the button isn't down.
                return IsGuardedButton(watched);
            case QEvent::ShortcutOverride:
                isHeld_ = static_cast<const QKeyEvent&>(event).isAutoRepeat();
                return false;
            case QEvent::Shortcut:
                // A click doesn't say whether its key was held, but always follows the key's event.
                return isHeld_ && IsGuardedButton(watched);
            case QEvent::KeyPress: {
                const auto& key = static_cast<const QKeyEvent&>(event);
                return key.isAutoRepeat() && RepeatsCommand(watched, key.key());
            }
            default:
                return false;
        }
    }

    bool isHeld_ = false;
};

} // namespace

void GuardPresses() {
    static QPointer<QObject> guard;
    if (guard) return;
    guard = new PressGuard(qApp);
    qApp->installEventFilter(guard);
}

} // namespace platform::qt
