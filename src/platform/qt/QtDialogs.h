#pragma once

#include <memory>

#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Desktop.h"
#include "platform/dialogs/Dialogs.h"

namespace platform::qt {

// Return the window program's implementations of platform/dialogs. Each dialog belongs to the
// window that is active when it is opened.

std::unique_ptr<Dialogs> MakeDialogs();
std::unique_ptr<Choosers> MakeChoosers();
std::unique_ptr<Desktop> MakeDesktop();

/// Closes the open dialogs and shows no more messages and questions: every further question is
/// answered No. For a program that is asked to end.
void DismissDialogs();

} // namespace platform::qt
