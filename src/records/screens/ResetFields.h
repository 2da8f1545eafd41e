#pragma once

#include <string_view>

class QWidget;

namespace records::screens {

/// Blanks the controls of a form that are bound to fields of `table`, so that another row, whose
/// nulls leave their controls alone, doesn't show what the one before it had.
void ResetFields(QWidget& form, std::string_view table);

} // namespace records::screens
