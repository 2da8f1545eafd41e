#pragma once

#include <QWidget>

namespace core::forms {

/// Makes the pages of a form's tabs scroll, so that the form can be smaller than its contents. At
/// its natural size nothing changes.
void LetPagesScroll(QWidget& form);

/// Makes a form scroll, except for its buttons, if it is larger than its screen; returns true if it
/// is.
bool LetFormScroll(QWidget& form);

/// Shrinks and moves a window so that all of it, including its frame, is on its screen.
void FitToScreen(QWidget& window);

/// Sets the focus to the first control for an entry on the visible page, unless such a control has
/// it already. Check boxes don't count: Space would change them unnoticed.
void FocusFirstEntry(QWidget& form);

} // namespace core::forms
