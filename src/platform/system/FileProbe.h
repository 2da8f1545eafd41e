#pragma once

#include <functional>

namespace platform {

/// Called before every step that changes a file which DiskFile or DraftFile writes: each write,
/// each sync, each change of a name. A test that stops the process at each of them proves what a
/// crash leaves behind. Empty is off.
void SetFileProbe(std::function<void()> probe);

/// Calls the probe, if there is one.
void ProbeFile();

} // namespace platform
