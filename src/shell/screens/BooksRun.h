#pragma once

#include "shell/RunDigest.h"

namespace shell::screens {

/// Brings the books up to date under the hourglass. What was posted is added to `digest`.
void RunBooks(RunDigest& digest);

} // namespace shell::screens
