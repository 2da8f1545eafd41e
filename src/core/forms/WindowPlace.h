#pragma once

#include "core/FormPosition.h"

class QWidget;

namespace core::forms {

/// Puts a window where one of its object name was when it was last closed; on a screen in any case.
void RestoreWindow(QWidget& window, FormSizing sizing);

/// Remembers where a window is that closes.
void SaveWindow(const QWidget& window);

} // namespace core::forms
