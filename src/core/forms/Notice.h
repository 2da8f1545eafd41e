#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace core::forms {

/// Returns a line for the top of a screen that says what is wrong with the screen's contents. It is
/// hidden at first.
QLabel* MakeNotice(QWidget& screen, const QString& name);

} // namespace core::forms
