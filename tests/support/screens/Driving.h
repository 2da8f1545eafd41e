#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid/Grid.h"

namespace support {

/// The child of this object name; a failed test and an exception when there is none.
template <class T>
T& Find(const QWidget& form, const char* name) {
    T* const found = form.findChild<T*>(QLatin1String(name));
    if (!found) throw std::runtime_error(std::string("no control named ") + name);
    return *found;
}

/// Puts the caret at the end of a box and types into it, key by key; what is there is replaced
/// first.
void Type(QWidget& box, std::string_view text);
/// Types on, with what is there left as it is.
void TypeOn(QWidget& box, std::string_view text);

/// Types into whatever has the focus, and goes on to what comes next with the Tab key.
void TypeAndTab(QWidget& form, std::string_view text);

/// Clicks the button whose word ("APPLY", "CLOSE", ...) its tag holds.
void ClickAction(const QWidget& form, std::string_view word);
void ClickOn(QWidget& control);
/// Chooses an item of a combo box as a user does.
void Choose(const QWidget& form, const char* combo, std::string_view text);

/// Lets events run until none is left, deletions among them.
void SettleEvents();

/// Captions and cells of the columns that show, cells separated by "|", a line each.
std::string GridText(const core::grid::Grid& grid);

/// The text that a control shows; "?" for a control without one.
std::string Text(const QWidget& form, const char* control);
/// The rows of a list, without hidden columns: cells separated by "|", ticked rows with "x ".
std::vector<std::string> ListRows(const QWidget& form, const char* list);
/// Chooses a menu item, which must be enabled.
void Trigger(const QWidget& form, const char* item);
/// Opens a form of this class.
template <class Screen, class... Arguments>
QPointer<Screen> Show(Arguments&&... arguments) {
    QPointer<Screen> form(new Screen);
    form->Setup(std::forward<Arguments>(arguments)...);
    return form;
}
/// The form of this class that is open last.
template <class Screen>
QPointer<Screen> Opened() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const form = qobject_cast<Screen*>(window);
        if (form && form->isVisible()) return form;
    }
    return nullptr;
}

} // namespace support
