#pragma once

#include <functional>

namespace shell {

/// What the end of the program consists of. A step that is empty is passed over.
struct ShutDownSteps {
    std::function<void()> saveWindow;
    std::function<void()> saveHomePage;
    std::function<void()> closeSession;
    std::function<void()> releaseDialogs;
    std::function<void()> unloadForms;
    std::function<bool()> isBackupWanted;
    /// Ends the process itself.
    std::function<void()> startBackup;
    std::function<void()> endProcess;
};

/// Runs the steps in their order. One that fails doesn't keep the program from ending: the others
/// run all the same. Without a backup the process ends.
void ShutDown(const ShutDownSteps& steps);

} // namespace shell
