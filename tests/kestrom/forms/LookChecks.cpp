#include "kestrom/forms/LookChecks.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>

#include "core/binding/DateEdit.h"
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

std::string SizeOf(QSize size) {
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

QImage PictureOf(const QWidget& control) {
    const QAction* const action = control.actions().value(0);
    return action ? action->icon().pixmap(16).toImage() : QImage();
}

QString WordsOf(QWidget& control) {
    return QAccessible::queryAccessibleInterface(&control)->text(QAccessible::Description);
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
            faults.push_back(NameOf(*control) + " is cut off: " + SizeOf(control->size()) +
                             " rather than " + SizeOf(wanted));
        }
    }
    return faults;
}

std::vector<std::string> DateFaults(const QWidget& screen) {
    std::vector<std::string> faults;
    for (auto* const box : screen.findChildren<core::binding::DateEdit*>()) {
        if (!IsShownIn(*box, screen)) continue;
        box->clearFocus();
        box->setText(QStringLiteral("1/1/2026"));
        const QImage picture = PictureOf(*box);
        const QString words = WordsOf(*box);
        box->setText(QStringLiteral("soon"));
        if (PictureOf(*box) == picture) faults.push_back(NameOf(*box) + " shows no picture");
        if (WordsOf(*box) == words) faults.push_back(NameOf(*box) + " says nothing");
    }
    return faults;
}

std::vector<std::string> WidthFaults(const QWidget& screen) {
    std::vector<std::string> faults;
    for (const auto* const page : screen.findChildren<QScrollArea*>()) {
        if (IsShownIn(*page, screen) && page->horizontalScrollBar()->maximum() > 0)
            faults.push_back(NameOf(*page->parentWidget()) + " is wider than its form");
    }
    return faults;
}

} // namespace tests
