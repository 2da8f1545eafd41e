#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace core::forms {

/// Returns a line, hidden at first, that stands at the top of a screen and says what is wrong with
/// what the screen holds.
QLabel* MakeNotice(QWidget& screen, const QString& name);

} // namespace core::forms
