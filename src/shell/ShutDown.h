#pragma once

#include <functional>

namespace shell {

/// The steps of shutting down. An empty step is skipped.
struct ShutDownSteps {
    std::function<void()> saveWindow;
    std::function<void()> saveHomePage;
    std::function<void()> closeSession;
    std::function<void()> releaseDialogs;
    std::function<void()> unloadForms;
    std::function<bool()> isBackupWanted;
    /// Ends the process.
    std::function<void()> startBackup;
    std::function<void()> endProcess;
};

/// Runs the steps in order. If one fails, the others still run. Without a backup the process ends.
void ShutDown(const ShutDownSteps& steps);

} // namespace shell
