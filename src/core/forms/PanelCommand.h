#pragma once

#include <functional>

class QWidget;

namespace core::forms {

/// Runs a command of a panel (a list with its buttons, on a form or on another window) and shows
/// any error; returns true if there was none. While a command of the panel's window runs, the panel
/// takes no second one.
bool PerformOn(const QWidget& panel, const std::function<void()>& command);

} // namespace core::forms
