#include "core/binding/EnableContainer.h"

#include <QFrame>
#include <QGroupBox>

namespace core::binding {

namespace {

/// Returns whether the widget is a plain frame or group box; many other widgets derive from a
/// frame.
bool IsContainer(const QWidget& widget) {
    return qobject_cast<const QGroupBox*>(&widget) ||
           widget.metaObject() == &QFrame::staticMetaObject ||
           widget.metaObject() == &QWidget::staticMetaObject;
}

} // namespace

void EnableContainer(QWidget& container, bool enabled) {
    for (QObject* const child : container.children()) {
        auto* const widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow()) continue;
        widget->setEnabled(enabled);
        if (IsContainer(*widget)) EnableContainer(*widget, enabled);
    }
}

} // namespace core::binding
