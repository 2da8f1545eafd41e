#include <cstdio>
#include <memory>
#include <optional>
#include <span>

#include "core/EditRecord.h"
#include "core/Globals.h"
#include "core/Preferences.h"
#include "core/Session.h"
#include "core/Startup.h"
#include "exchange/BackupConfig.h"
#include "exchange/screens/frmBackup.h"
#include "kestrom/Application.h"
#include "kestrom/Reports.h"
#include "kestrom/Start.h"
#include "kestrom/Wiring.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/Icons.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QuitRequests.h"
#include "platform/qt/SingleInstance.h"
#include "platform/system/Clock.h"
#include "platform/system/ProgramHelp.h"
#include "reports/PrintReport.h"
#include "reports/ReportList.h"
#include "shell/CommandLine.h"
#include "shell/Registrations.h"
#include "shell/screens/BooksRun.h"
#include "shell/screens/frmKestrom.h"
#include "shell/screens/frmSplash.h"

namespace {

constexpr int kWrongUsage = 2;

shell::screens::WindowServices Services(const shell::CommandLine& line) {
    shell::screens::WindowServices services;
    services.commands = kestrom::MenuCommands();
    services.hasEditor = core::HasEditor;
    if (reports::HasReportViewer()) {
        // The list's definition is the scratch report.
        services.viewReport = [](const std::filesystem::path&) {
            reports::RunReport(reports::kScratchReport);
        };
    }
    // Books opened read-only aren't backed up either.
    if (!line.readOnly) {
        services.backupNotice = exchange::BackupNotice;
        services.end.isBackupWanted = exchange::IsBackupDue;
    }
    services.end.startBackup = [] {
        (new exchange::screens::frmBackup)->Setup([] { QCoreApplication::quit(); });
    };
    services.end.endProcess = [] { QCoreApplication::quit(); };
    return services;
}

/// Runs the program, from the check for another instance to the end of the event loop.
int Run(kestrom::Application& application, const shell::CommandLine& line) {
    platform::qt::SingleInstance instance(platform::qt::InstanceName());
    if (!instance.IsFirst()) {
        instance.AskFirstToShow();
        return 0;
    }
    core::InitGlobals(line.rest);
    const platform::qt::DesktopAppearance appearance;
    kestrom::RegisterPlatform();
    shell::RegisterLogic();
    kestrom::RegisterEditors();

    std::unique_ptr<shell::screens::frmKestrom> window;
    bool endAsked = false;
    const platform::qt::QuitRequests requests;
    QObject::connect(&requests, &platform::qt::QuitRequests::QuitAsked, &application, [&] {
        endAsked = true;
        platform::qt::DismissDialogs();
        if (!window) return;
        // The backup screen may still be open after the window has ended.
        if (window->HasEnded()) QCoreApplication::quit();
        window->EndUnasked();
    });

    core::LoadPreferences();
    platform::qt::ApplyAppearance(platform::qt::Appearance{core::Preferences().Appearance});
    kestrom::FindBooks(line, [&] { return endAsked; });
    core::OpenBooks(line.readOnly ? core::BooksUse::Read : core::BooksUse::Keep);

    std::optional<shell::screens::frmSplash> splash;
    if (core::Preferences().ShowSplash) {
        splash.emplace();
        splash->Setup();
        kestrom::LetSplashBeSeen();
    }
    shell::RunDigest digest;
    shell::screens::RunBooks(digest);
    core::CleanTmpFiles();
    kestrom::InstallFiles();
    kestrom::LoadReports();
    if (endAsked) {
        core::CloseDatabase(core::App().Connection);
        return 0;
    }

    window = std::make_unique<shell::screens::frmKestrom>(Services(line));
    QObject::connect(&instance, &platform::qt::SingleInstance::ShowAsked, window.get(),
                     &shell::screens::frmKestrom::ComeToFront);
    window->Setup(std::move(digest));
    if (splash) {
        splash->raise();
        kestrom::LetSplashBeSeen();
        splash.reset();
    }
    // The window may have been closed while the splash was shown.
    return window->HasEnded() ? 0 : kestrom::Application::exec();
}

} // namespace

int main(int argc, char** argv) {
    const std::span words(argv, static_cast<std::size_t>(argc));
    if (platform::AnswerIfAsked(shell::WindowHelp(), words)) return 0;
    kestrom::Application application(argc, argv);
    kestrom::Application::setApplicationName(QStringLiteral("kestrom"));
    kestrom::Application::setApplicationDisplayName({});
    kestrom::Application::setDesktopFileName(QStringLiteral("vestrel"));
    kestrom::Application::setQuitOnLastWindowClosed(false);
    kestrom::Application::setWindowIcon(platform::qt::LoadIcon(QStringLiteral("vestrel")));

    // The application has removed its own options.
    const std::span own = words.first(static_cast<std::size_t>(argc));
    const shell::CommandLine line = shell::ReadCommandLine(own.subspan(1));
    if (!line.fault.empty()) {
        std::fprintf(stderr, "kestrom: %s\n", line.fault.c_str());
        return kWrongUsage;
    }
    if (line.today) platform::SetToday(line.today);
    try {
        return Run(application, line);
    } catch (const kestrom::ProcessEnd& end) {
        return end.code;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kestrom: %s\n", failure.what());
        return 1;
    }
}
