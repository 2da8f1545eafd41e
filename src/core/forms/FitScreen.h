#pragma once

#include <QWidget>

namespace core::forms {

/// Lets the pages of a form's tabs scroll, so that the form can be made smaller than what is on
/// them. At its natural size nothing changes.
void LetPagesScroll(QWidget& form);

/// Lets a form scroll all but its buttons if it is larger than its screen; returns true if it is.
bool LetFormScroll(QWidget& form);

/// Shrinks and moves a window so that all of it, its frame included, is on its screen.
void FitToScreen(QWidget& window);

/// Puts the focus on the first control that takes an entry, on the page that shows; a control that
/// has the focus and takes one keeps it. Check boxes don't count: Space would change them unseen.
void FocusFirstEntry(QWidget& form);

} // namespace core::forms
