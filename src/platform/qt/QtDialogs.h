#pragma once

#include <memory>

#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Desktop.h"
#include "platform/dialogs/Dialogs.h"

namespace platform::qt {

// What stands behind the seams of platform/dialogs in the window program. Each stands over the
// window that is active when it is asked.

std::unique_ptr<Dialogs> MakeDialogs();
std::unique_ptr<Choosers> MakeChoosers();
std::unique_ptr<Desktop> MakeDesktop();

} // namespace platform::qt
