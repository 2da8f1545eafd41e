#pragma once

#include "core/FormPosition.h"

class QWidget;

namespace core::forms {

/// Restores a window's place, stored by its object name; in any case it is put on a screen.
void RestoreWindow(QWidget& window, FormSizing sizing);

/// Stores the place of a closing window.
void SaveWindow(const QWidget& window);

} // namespace core::forms
