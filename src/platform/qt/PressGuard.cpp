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

/// Whether a key that stays down would give the same command again: to the default button of a
/// dialog, or to the row that a list has moved on to.
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
    /// The release that follows the second press of a double click clicks nothing, as the button
    /// isn't down.
    static bool IsSecondPress(const QObject& watched, const QEvent& event) {
        if (event.type() == QEvent::MouseButtonDblClick) {
            const auto* const button = qobject_cast<const QAbstractButton*>(&watched);
            return button != nullptr && !TakesEveryPress(*button);
        }
        if (event.type() != QEvent::KeyPress) return false;
        const auto& key = static_cast<const QKeyEvent&>(event);
        return key.isAutoRepeat() && RepeatsCommand(watched, key.key());
    }
};

} // namespace

void GuardPresses() {
    static QPointer<QObject> guard;
    if (guard) return;
    guard = new PressGuard(qApp);
    qApp->installEventFilter(guard);
}

} // namespace platform::qt
