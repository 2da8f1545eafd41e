#pragma once

#include <QWidget>

namespace core::forms {

/// Moves the buttons of `bar` to the end of the tab order: they are created before the controls on
/// the pages of a tabbed form.
void PutLastInTabOrder(QWidget& form, const QWidget& bar);

} // namespace core::forms
