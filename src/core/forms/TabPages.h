#pragma once

#include <QWidget>

namespace core::forms {

/// Lets the Tab key reach the buttons of `bar` behind everything else of `form`: they are made
/// before what stands on the pages of a tabbed form.
void PutLastInTabOrder(QWidget& form, const QWidget& bar);

} // namespace core::forms
