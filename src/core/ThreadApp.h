#pragma once

#include "core/Globals.h"

namespace core {

/// Makes App return `app` to this thread, the process's instance for null. Returns what was set
/// before. Only for ScratchSession.
Globals* SetAppOfThread(Globals* app);

} // namespace core
