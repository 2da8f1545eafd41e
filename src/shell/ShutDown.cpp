#include "shell/ShutDown.h"

#include <exception>

#include <fmt/core.h>

#include "core/DiagLog.h"
#include "core/Globals.h"

namespace shell {

namespace {

bool Try(const std::function<void()>& step) {
    if (!step) return false;
    try {
        step();
        return true;
    } catch (const std::exception& error) {
        core::WriteDiag(core::App().DiagFile, fmt::format("{{*}} At the end: {}", error.what()));
        return false;
    }
}

} // namespace

void ShutDown(const ShutDownSteps& steps) {
    for (const auto* step : {&steps.saveWindow, &steps.saveHomePage, &steps.closeSession,
                             &steps.releaseDialogs, &steps.unloadForms}) {
        Try(*step);
    }
    bool wanted = false;
    Try([&] { wanted = steps.isBackupWanted && steps.isBackupWanted(); });
    if (wanted && Try(steps.startBackup)) return;
    Try(steps.endProcess);
}

} // namespace shell
