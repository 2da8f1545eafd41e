#pragma once

class QWidget;

namespace records::screens {

// A form's combo boxes that remember the texts typed into them: the boxes with the property
// "pickList" set.

/// Fills the boxes with the remembered texts and leaves them blank.
void LoadPickFields(QWidget& form);
/// Remembers the texts that are new in the boxes.
void SavePickFields(const QWidget& form);

} // namespace records::screens
