#include "support/Crashes.h"

#include <sys/wait.h>
#include <unistd.h>

#include <exception>

#include "core/Globals.h"
#include "platform/database/StatementProbe.h"
#include "support/Dump.h"

namespace support {

namespace fs = std::filesystem;

namespace {

constexpr int kDone = 0;
constexpr int kStopped = 77;
constexpr int kFailed = 1;

/// The database file as it was when this was made, to start from again.
class Snapshot {
  public:
    explicit Snapshot(fs::path file) : file_(std::move(file)), copy_(file_.string() + ".before") {
        fs::copy_file(file_, copy_, fs::copy_options::overwrite_existing);
    }
    ~Snapshot() { fs::remove(copy_); }
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

    void Restore() const {
        for (const char* const rest : {"-wal", "-shm"})
            fs::remove(file_.string() + rest);
        fs::copy_file(copy_, file_, fs::copy_options::overwrite_existing);
    }

  private:
    fs::path file_;
    fs::path copy_;
};

/// How a process ended that was killed before the statement of this number, counted from 1.
int StopBefore(int statement, const fs::path& file, const std::function<void()>& work) {
    const pid_t process = fork();
    if (process == 0) {
        try {
            core::App().Connection.Open(file);
            int reached = 0;
            platform::SetStatementProbe([&] {
                if (++reached == statement) _exit(kStopped);
            });
            work();
        } catch (const std::exception&) {
            _exit(kFailed);
        }
        _exit(kDone);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : kFailed;
}

std::vector<std::string> Reopen(const fs::path& file) {
    core::App().Connection.Open(file);
    std::vector<std::string> books = Dump();
    core::App().Connection.Close();
    return books;
}

} // namespace

Crashes CrashAtEveryStatement(const std::function<void()>& work) {
    const fs::path file = core::App().Connection.File();
    core::App().Connection.Close();
    const std::vector<std::string> before = Reopen(file);
    const Snapshot snapshot(file);
    Crashes crashes;
    std::vector<std::vector<std::string>> found;
    for (int end = kStopped; end == kStopped;) {
        snapshot.Restore();
        end = StopBefore(crashes.statements + 1, file, work);
        if (end == kFailed) crashes.faults.emplace_back("the work failed");
        found.push_back(Reopen(file));
        if (end == kStopped) ++crashes.statements;
    }
    const std::vector<std::string> after = found.back();
    found.pop_back();
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (found[i] == before) {
            ++crashes.asBefore;
        } else if (found[i] == after) {
            ++crashes.asAfter;
        } else {
            crashes.faults.push_back("half done before statement " + std::to_string(i + 1));
        }
    }
    if (after == before) crashes.faults.emplace_back("the work changed nothing");
    core::App().Connection.Open(file);
    return crashes;
}

} // namespace support
