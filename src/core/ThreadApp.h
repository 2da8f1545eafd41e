#pragma once

#include "core/Globals.h"

namespace core {

/// Makes App return `app` on this thread; null restores the process's instance. Returns the
/// previous setting. Only for ScratchSession.
Globals* SetAppOfThread(Globals* app);

} // namespace core
