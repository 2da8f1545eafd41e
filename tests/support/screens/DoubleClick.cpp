#include "support/screens/DoubleClick.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

namespace support {

void DoubleClickOn(QWidget& control) {
    const QPointF at = control.rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                            QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QCoreApplication::postEvent(
            &control, new QMouseEvent(type, at, control.mapToGlobal(at), Qt::LeftButton,
                                      Qt::LeftButton, Qt::NoModifier));
    }
    QCoreApplication::sendPostedEvents(&control);
}

} // namespace support
