#include "kestrom/forms/LookChecks.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>

#include "platform/qt/Text.h"

namespace tests {

namespace {

std::string NameOf(const QWidget& control) {
    return platform::qt::FromScreen(control.objectName());
}

/// A control of its own that is typed into, chosen from or clicked, rather than a part of one.
bool TakesInput(const QWidget& control) {
    if (control.objectName().startsWith(QLatin1String("qt_"))) return false;
    for (const QWidget* at = control.parentWidget(); at; at = at->parentWidget()) {
        if (qobject_cast<const QComboBox*>(at) || qobject_cast<const QAbstractSpinBox*>(at) ||
            qobject_cast<const QLineEdit*>(at) || qobject_cast<const QAbstractItemView*>(at) ||
            qobject_cast<const QTabBar*>(at)) {
            return false;
        }
    }
    return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control) ||
           qobject_cast<const QAbstractSpinBox*>(&control) ||
           qobject_cast<const QPlainTextEdit*>(&control) ||
           qobject_cast<const QTextEdit*>(&control) ||
           qobject_cast<const QAbstractItemView*>(&control) ||
           qobject_cast<const QAbstractButton*>(&control);
}

/// Panels and all: what is shown in the window itself.
bool IsShownIn(const QWidget& control, const QWidget& screen) {
    return control.isVisible() && control.window() == screen.window();
}

bool ShowsText(const QWidget& control) {
    return qobject_cast<const QLabel*>(&control) || TakesInput(control) ||
           qobject_cast<const QGroupBox*>(&control);
}

} // namespace

std::vector<std::string> NamelessFaults(const QWidget& screen) {
    std::vector<std::string> faults;
    for (QWidget* const control : screen.findChildren<QWidget*>()) {
        if (!IsShownIn(*control, screen) || !TakesInput(*control)) continue;
        const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(control);
        if (spoken && !spoken->text(QAccessible::Name).trimmed().isEmpty()) continue;
        faults.push_back(NameOf(*control) + " has no name");
    }
    return faults;
}

std::vector<std::string> ClippingFaults(const QWidget& screen) {
    // A text that has just been set gets its place with the next layout.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    std::vector<std::string> faults;
    for (const QWidget* const control : screen.findChildren<QWidget*>()) {
        if (!IsShownIn(*control, screen) || !ShowsText(*control)) continue;
        const auto* const label = qobject_cast<const QLabel*>(control);
        const bool wraps = label && label->wordWrap();
        QSize wanted =
            wraps ? QSize(0, label->heightForWidth(label->width())) : control->minimumSizeHint();
        if (label && label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored) {
            wanted.setWidth(0); // of any length; its tool tip has the whole
        }
        if (control->width() < wanted.width() || control->height() < wanted.height()) {
            faults.push_back(NameOf(*control) + " is cut off");
        }
    }
    return faults;
}

} // namespace tests
