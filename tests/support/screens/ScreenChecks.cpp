#include "support/screens/ScreenChecks.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <algorithm>
#include <map>
#include <set>

#include "core/binding/Binding.h"
#include "platform/qt/Text.h"
#include "support/screens/Driving.h"
#include "support/screens/Gallery.h"

namespace support {

using platform::qt::FromScreen;

namespace {

std::string NameOf(const QWidget& control) {
    return FromScreen(control.objectName());
}

QString TextOf(const QWidget& control) {
    if (const auto* const label = qobject_cast<const QLabel*>(&control)) {
        return label->buddy() ? label->text() : QString();
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&control)) {
        return button->text();
    }
    return {};
}

bool IsEntry(const QWidget& control) {
    return qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control) ||
           qobject_cast<const QPlainTextEdit*>(&control);
}

/// Whether `b` comes before `a` for a reader: above it, or beside it on its left.
bool IsBefore(const QWidget& b, const QWidget& a, const QWidget& screen) {
    const QRect first(b.mapTo(&screen, QPoint(0, 0)), b.size());
    const QRect second(a.mapTo(&screen, QPoint(0, 0)), a.size());
    const int shared =
        std::min(first.bottom(), second.bottom()) - std::max(first.top(), second.top());
    const bool areBeside = 2 * shared > std::min(first.height(), second.height());
    return areBeside ? first.left() < second.left() : first.top() < second.top();
}

/// The page that scrolls around a control; null if none does.
const QWidget* ScrollOf(const QWidget& control) {
    for (const QWidget* at = control.parentWidget(); at; at = at->parentWidget())
        if (at->objectName() == QLatin1String("scroll")) return at;
    return nullptr;
}

/// Next to each other rather than in different columns: their widths overlap, or they share a line.
/// What scrolls may lie anywhere relative to what doesn't.
bool AreComparable(const QWidget& a, const QWidget& b, const QWidget& screen) {
    if (ScrollOf(a) != ScrollOf(b)) return false;
    const QRect first(a.mapTo(&screen, QPoint(0, 0)), a.size());
    const QRect second(b.mapTo(&screen, QPoint(0, 0)), b.size());
    return a.parentWidget() == b.parentWidget() ||
           (first.right() >= second.left() && second.right() >= first.left());
}

} // namespace

std::vector<std::string> MnemonicFaults(const QWidget& screen) {
    std::vector<std::string> faults;
    std::map<QString, std::string> taken;
    for (const QWidget* const control : core::binding::ControlsOf(screen)) {
        const auto* const label = qobject_cast<const QLabel*>(control);
        if (label && !label->buddy() && !QKeySequence::mnemonic(label->text()).isEmpty()) {
            faults.push_back(NameOf(*label) + " jumps nowhere");
        }
        if (!control->isVisible()) continue;
        const QString key = QKeySequence::mnemonic(TextOf(*control)).toString();
        if (key.isEmpty()) continue;
        const auto [other, isNew] = taken.emplace(key, NameOf(*control));
        if (!isNew) {
            faults.push_back(NameOf(*control) + " and " + other->second + " share " +
                             FromScreen(key));
        }
    }
    return faults;
}

std::vector<std::string> TabOrderFaults(QWidget& screen) {
    std::vector<std::string> faults;
    const QWidget* before = nullptr;
    std::set<const QWidget*> reached;
    for (const QWidget* widget = screen.nextInFocusChain(); widget && widget != &screen;
         widget = widget->nextInFocusChain()) {
        const bool isStop = widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                            widget->window() == &screen &&
                            !widget->objectName().startsWith(QLatin1String("qt_"));
        reached.insert(widget);
        if (!isStop) continue;
        const bool isInside = before && before->isAncestorOf(widget);
        if (before && !isInside && AreComparable(*before, *widget, screen) &&
            IsBefore(*widget, *before, screen)) {
            faults.push_back(NameOf(*widget) + " comes after " + NameOf(*before));
        }
        before = widget;
    }
    for (const QWidget* const control : core::binding::ControlsOf(screen)) {
        const bool isStop = control->isVisible() && (control->focusPolicy() & Qt::TabFocus) != 0 &&
                            control->window() == &screen;
        if (isStop && !reached.contains(control))
            faults.push_back(NameOf(*control) + " is never reached by Tab");
    }
    return faults;
}

std::vector<std::string> NameFaults(const QWidget& screen) {
    std::vector<std::string> faults;
    for (const QWidget* const control : core::binding::ControlsOf(screen)) {
        if (IsEntry(*control) && control->accessibleName().isEmpty()) {
            faults.push_back(NameOf(*control) + " has no name");
        }
    }
    return faults;
}

std::vector<std::string> LookFaults(QWidget& screen, const std::string& name) {
    std::vector<std::string> faults = Portray(screen, name);
    for (const auto& more : {MnemonicFaults(screen), TabOrderFaults(screen), NameFaults(screen)})
        faults.insert(faults.end(), more.begin(), more.end());
    return faults;
}

std::vector<std::string> LookFaultsOfTabs(QWidget& form, const std::string& name) {
    auto* const tabs = form.findChild<QTabWidget*>();
    if (!tabs) return LookFaults(form, name);
    std::vector<std::string> faults;
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        SettleEvents();
        for (const std::string& fault : LookFaults(form, name + std::to_string(page)))
            faults.push_back("tab " + std::to_string(page) + ": " + fault);
    }
    return faults;
}

} // namespace support
