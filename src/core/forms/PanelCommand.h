#pragma once

#include <functional>

class QWidget;

namespace core::forms {

/// Runs a command of a panel (a list with its buttons, on a form or on another window) and shows
/// what it throws; returns true if it ran without. While a command of the panel's window runs, the
/// panel takes no second one.
bool PerformOn(const QWidget& panel, const std::function<void()>& command);

} // namespace core::forms
