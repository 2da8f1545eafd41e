#pragma once

class QWidget;

namespace records::screens {

// The combo boxes of a form that remember what was typed into them: those with the property
// "pickList" set.

/// Offers what is remembered and leaves the boxes blank.
void LoadPickFields(QWidget& form);
/// Remembers what is new in them.
void SavePickFields(const QWidget& form);

} // namespace records::screens
