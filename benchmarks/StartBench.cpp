// From the start of the process to the painted main window, on the sample portfolio and without the
// splash, in its parts. There is no limit: the figures are for comparison.
#include <spawn.h>
#include <sys/wait.h>

#include <QApplication>
#include <chrono>
#include <cstdlib>

#include <fmt/core.h>

#include "Measure.h"
#include "PaintWatch.h"
#include "core/FindDatabase.h"
#include "core/Globals.h"
#include "core/Preferences.h"
#include "core/RegistryKeys.h"
#include "core/Settings.h"
#include "core/Startup.h"
#include "platform/registry/Registry.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "shell/screens/BooksRun.h"
#include "shell/screens/frmKestrom.h"
#include "support/TemporaryFolder.h"

namespace {

constexpr int kStarts = 5;

double Now() {
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// The program's own start, in the process that was started at `begun`.
void Start(const char* folder, double begun, int& argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("XDG_RUNTIME_DIR", folder, 0);
    platform::SetRegistry(platform::MakeMemoryRegistry());
    core::SetRegString(core::kDatabasesKey, core::kDefaultDatabase, folder);
    const QApplication application(argc, argv);
    core::InitGlobals({});
    shell::RegisterLogic();
    const double process = Now();

    core::LoadPreferences();
    core::FindDatabase(nullptr);
    core::OpenBooks();
    const double database = Now();

    shell::RunDigest digest;
    shell::screens::RunBooks(digest);
    core::CleanTmpFiles();
    const double run = Now();

    shell::screens::frmKestrom window({});
    const bench::PaintWatch watch(*window.findChild<QWidget*>(QStringLiteral("lblAlerts")));
    window.Setup(std::move(digest));
    watch.Wait();
    const double painted = Now();
    fmt::print("{:>9.0f} ms  (process {:.0f}, database {:.0f}, run {:.0f}, window {:.0f})\n",
               painted - begun, process - begun, database - process, run - database, painted - run);
}

void StartOnce(const char* program, const std::string& folder) {
    std::string begun = fmt::format("{:.6f}", Now());
    std::string place = folder;
    std::string name = program;
    char* const words[] = {name.data(), place.data(), begun.data(), nullptr};
    pid_t child = 0;
    if (posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, words, environ) != 0) {
        throw platform::Error("the program can't be started");
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) throw platform::Error("the start failed");
}

int Run(int argc, char** argv) {
    if (argc == 3) {
        Start(argv[1], std::atof(argv[2]), argc, argv);
        return 0;
    }
    const support::TemporaryFolder folder;
    const std::string books = (folder / "books").string();
    bench::InOwnProcess(
        [&] {
            shell::RegisterLogic();
            shell::MakeSamplePortfolio(books, shell::kSampleUnits, platform::Today());
        },
        [] { return 0.0; });
    fmt::print("from the start to the painted window, on the sample portfolio:\n");
    std::fflush(stdout);
    for (int i = 0; i < kStarts; ++i)
        StartOnce(argv[0], books);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    return bench::Guarded([&] { return Run(argc, argv); });
}
