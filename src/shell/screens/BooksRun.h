#pragma once

#include "shell/RunDigest.h"

namespace shell::screens {

/// Brings the books up to date with the wait cursor shown. Adds what was posted to `digest`.
void RunBooks(RunDigest& digest);

} // namespace shell::screens
