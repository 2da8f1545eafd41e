#include "shell/screens/ResetSampleCommand.h"

#include <QGuiApplication>
#include <QProcess>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/forms/OpenForms.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"

namespace shell::screens {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::string_view kTitle = "Reset Sample";

/// Resets the sample. Returns why that failed; empty if the sample is new.
std::string RunReset(const std::filesystem::path& vestrelctl) {
    constexpr int kNoLimit = -1;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QProcess reset;
    reset.start(
        ToScreen(vestrelctl.string()),
        {QStringLiteral("--today"), ToScreen(platform::Today().ToText()), QStringLiteral("init"),
         QStringLiteral("--sample"), QStringLiteral("--reset"), ToScreen(core::App().DbPath)});
    const bool hasRun = reset.waitForStarted() && reset.waitForFinished(kNoLimit);
    QGuiApplication::restoreOverrideCursor();
    if (!hasRun) return vestrelctl.string() + " can't be started.";
    if (reset.exitStatus() == QProcess::NormalExit && reset.exitCode() == 0) return {};
    const QString said = QString::fromUtf8(reset.readAllStandardError()).trimmed();
    return said.isEmpty() ? "The sample can't be reset." : FromScreen(said);
}

} // namespace

void ResetOpenSample(const std::filesystem::path& vestrelctl) {
    const bool agreed =
        platform::TheDialogs().AskYesNo(kTitle,
                                        "The sample will be replaced by a new one, as of today. "
                                        "All that was entered in it is lost.\n"
                                        "No other books are touched. Do you want to continue?",
                                        platform::Icon::Question);
    if (!agreed || !core::forms::MayCloseAllForms()) return;
    core::forms::CloseAllForms();
    const std::string fault = RunReset(vestrelctl);
    core::NotifyOfAllKinds();
    if (!fault.empty())
        platform::TheDialogs().ShowMessage(kTitle, fault, platform::Icon::Exclamation);
}

} // namespace shell::screens
