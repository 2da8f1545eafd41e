#pragma once

#include <functional>

namespace platform {

/// Sets a function that is called before every step that changes a file which DiskFile or DraftFile
/// writes: each write, each sync, each change of a name. A test that stops the process at each of
/// them proves what a crash leaves behind. An empty function turns this off.
void SetFileProbe(std::function<void()> probe);

/// Calls the probe, if there is one.
void ProbeFile();

} // namespace platform
