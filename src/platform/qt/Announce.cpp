#include "platform/qt/Announce.h"

#include <QAccessible>
#include <QLabel>

namespace platform::qt {

void Announce(QLabel& label) {
    QAccessibleEvent event(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace platform::qt
