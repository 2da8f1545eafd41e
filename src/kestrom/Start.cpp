#include "kestrom/Start.h"

#include <QCoreApplication>
#include <QThread>

#include <fmt/core.h>

#include "core/AppPath.h"
#include "core/FindDatabase.h"
#include "core/Globals.h"
#include "core/RegistryKeys.h"
#include "core/ShippedFiles.h"
#include "documents/ShippedDocs.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/registry/Registry.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/system/Process.h"
#include "shell/SplashTime.h"

namespace kestrom {

namespace {

/// Finds the books in a folder that was given on the command line. The repair tool can't help with
/// these, since it knows databases by their registered names.
void FindBooksIn(const std::string& folder) {
    core::Globals& app = core::App();
    app.DbPath = platform::AddBackslash(folder);
    app.DbFile = app.DbPath + "Vestrel.mdb";
    std::string fault;
    if (!platform::FileExists(app.DbFile)) {
        fault = fmt::format("There is no database {}.", app.DbFile);
    } else if (const int version = core::ReadDbVersion(); version < app.DbVersionRequired) {
        fault = fmt::format("{} has version {}; version {} is needed.", app.DbFile, version,
                            app.DbVersionRequired);
    }
    if (fault.empty()) return;
    platform::TheDialogs().ShowMessage("Database Notice", fault, platform::Icon::Critical);
    throw ProcessEnd{1};
}

} // namespace

void FindBooks(const shell::CommandLine& line, const std::function<bool()>& isEnding) {
    if (line.data) {
        FindBooksIn(*line.data);
        return;
    }
    if (core::FindDatabase(nullptr) == core::DatabaseState::Ready) return;
    // A user who names a database already has one.
    const core::Globals& app = core::App();
    const bool hadBooks = !app.DbPath.empty() || app.DbName != core::kDefaultDatabase ||
                          platform::TheRegistry().IsDamaged();
    const bool welcomes = line.welcomes && !hadBooks;
    core::StartDatabaseMender(
        {
            .start =
                [&](const std::filesystem::path& program,
                    const std::vector<std::string>& arguments) {
                    return isEnding() || platform::StartDetached(program, arguments);
                },
            .endProcess = [] { throw ProcessEnd{0}; },
        },
        welcomes ? core::MenderGreeting::Welcome : core::MenderGreeting::Notice);
}

void InstallFiles() {
    core::InstallShippedFiles(core::ShippedPath("Reports"), core::App().ReportPath);
    documents::InstallShippedDocs();
}

void LetSplashBeSeen() {
    constexpr unsigned long kRestMs = 10;
    const shell::SplashTime time(platform::SecondOfDay());
    while (!time.IsOver(platform::SecondOfDay())) {
        QCoreApplication::processEvents();
        QThread::msleep(kRestMs);
    }
}

} // namespace kestrom
