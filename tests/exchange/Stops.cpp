#include "exchange/Stops.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <set>

#include "core/Globals.h"
#include "platform/database/StatementProbe.h"
#include "platform/system/FileProbe.h"
#include "support/TemporaryFolder.h"

namespace tests {

namespace fs = std::filesystem;

namespace {

constexpr int kStopped = 77;
constexpr int kFailed = 1;

void CopyAll(const fs::path& from, const fs::path& to) {
    for (const fs::directory_entry& entry : fs::directory_iterator(to))
        fs::remove_all(entry.path());
    fs::copy(from, to, fs::copy_options::recursive);
}

/// How a process ends that opens the books and does this.
int InAnotherProcess(const std::function<void()>& work) {
    const pid_t process = fork();
    if (process == 0) {
        try {
            core::App().Connection.Open(core::App().DbFile);
            work();
        } catch (const std::exception&) {
            _exit(kFailed);
        }
        _exit(0);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : kFailed;
}

} // namespace

int StopAtEveryStep(const fs::path& folder, const std::function<void()>& work,
                    const std::function<void(bool wasStopped)>& check) {
    core::App().Connection.Close();
    const support::TemporaryFolder before;
    CopyAll(folder, before.Path());
    int steps = 0;
    for (int end = kStopped; end == kStopped;) {
        end = InAnotherProcess([&] {
            int reached = 0;
            const auto stop = [&] {
                if (++reached == steps + 1) _exit(kStopped);
            };
            platform::SetStatementProbe(stop);
            platform::SetFileProbe(stop);
            work();
        });
        EXPECT_NE(end, kFailed) << "the work failed";
        check(end == kStopped);
        CopyAll(before.Path(), folder);
        if (end == kStopped) ++steps;
    }
    core::App().Connection.Open(core::App().DbFile);
    return steps;
}

void WithLittleRoom(std::size_t bytes, const std::function<void()>& work) {
    core::App().Connection.Close();
    InAnotherProcess([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
        work();
    });
    core::App().Connection.Open(core::App().DbFile);
}

std::string ReadText(const fs::path& file) {
    std::ifstream input(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), {}};
}

void WriteText(const fs::path& file, const std::string& text) {
    std::ofstream(file, std::ios::binary) << text;
}

std::string NamesIn(const fs::path& folder) {
    std::set<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : " ") + name;
    return list;
}

} // namespace tests
