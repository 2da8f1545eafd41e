#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <thread>

#include "platform/system/Paths.h"
#include "store/CreateDatabase.h"
#include "support/TemporaryFolder.h"

// The whole program as a process, without a display: each test has a machine of its own.

namespace {

using testing::HasSubstr;

class Process : public testing::Test {
  public:
    ~Process() override {
        for (const pid_t pid : started_) {
            ::kill(pid, SIGKILL);
            ::waitpid(pid, nullptr, 0);
        }
    }

  protected:
    Process() {
        for (const char* const name : {"config", "data", "run"})
            std::filesystem::create_directory(folder_ / name);
        std::filesystem::permissions(folder_ / "run", std::filesystem::perms::owner_all);
        store::CreateDatabase(folder_ / "books");
    }
    void Register(const std::string& name, const std::filesystem::path& books) {
        std::filesystem::create_directory(folder_ / "config/Vestrel");
        std::ofstream(folder_ / "config/Vestrel/registry.json")
            << R"({"SOFTWARE\\Vestrel\\Global\\Databases": {")" << name << R"(": ")"
            << books.string() << R"("}, "SOFTWARE\\Vestrel\\Global\\Preferences": )"
            << R"({"ShowSplash": "False"}})";
    }

    pid_t Start(std::vector<std::string> arguments) {
        const pid_t pid = ::fork();
        if (pid == 0) Become(std::move(arguments));
        started_.push_back(pid);
        return pid;
    }

    /// The exit status of a process, -1 for one that a signal ended.
    int Wait(pid_t pid) {
        int status = 0;
        ::waitpid(pid, &status, 0);
        std::erase(started_, pid);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string Said() const { return platform::ReadWholeFile(folder_ / "said"); }

    /// Waits until the program has its books open, or has ended.
    void WaitForBooks(pid_t pid) const {
        while (!std::filesystem::exists(folder_ / "books/Vestrel.mdb-wal")) {
            siginfo_t ended{};
            ::waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOHANG | WNOWAIT);
            if (ended.si_pid != 0) return;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    }

    /// Waits until the program handles SIGTERM, or has ended.
    static void WaitForHandler(pid_t pid) {
        constexpr unsigned long kTerm = 1UL << (SIGTERM - 1);
        const std::string status = "/proc/" + std::to_string(pid) + "/status";
        siginfo_t ended{};
        while (::waitid(P_PID, static_cast<id_t>(pid), &ended, WEXITED | WNOHANG | WNOWAIT) == 0 &&
               ended.si_pid == 0) {
            std::ifstream file(status);
            std::string word;
            while (file >> word && word != "SigCgt:") {
            }
            if (!(file >> word) || (std::stoul(word, nullptr, 16) & kTerm) != 0) return;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    }

    support::TemporaryFolder folder_;

  private:
    [[noreturn]] void Become(std::vector<std::string> arguments) {
        const int said = ::open((folder_ / "said").c_str(), O_CREAT | O_APPEND | O_WRONLY, 0600);
        ::dup2(said, STDERR_FILENO);
        ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
        ::setenv("XDG_CONFIG_HOME", (folder_ / "config").c_str(), 1);
        ::setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
        ::setenv("XDG_RUNTIME_DIR", (folder_ / "run").c_str(), 1);
        ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
        arguments.insert(arguments.begin(), VESTREL_KESTROM);
        std::vector<char*> words;
        words.reserve(arguments.size() + 1);
        for (std::string& argument : arguments)
            words.push_back(argument.data());
        words.push_back(nullptr);
        ::execv(VESTREL_KESTROM, words.data());
        ::_exit(127);
    }

    std::vector<pid_t> started_;
};

TEST_F(Process, EndsCleanlyOnTheSignalsThatAskForIt) {
    Register("Default", folder_ / "books");
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const pid_t pid = Start({"--today", "05/17/2024"});
        WaitForBooks(pid);
        ::kill(pid, number);
        EXPECT_EQ(Wait(pid), 0) << number << Said();
        EXPECT_FALSE(std::filesystem::exists(folder_ / "books/Vestrel.mdb-wal"));
    }
    EXPECT_THAT(platform::ReadWholeFile(folder_ / "config/Vestrel/registry.json"),
                HasSubstr("frmKestrom"));
}

TEST_F(Process, EndsOnASignalWhileANoticeIsShown) {
    const pid_t pid = Start({});
    WaitForHandler(pid);
    ::kill(pid, SIGTERM);
    EXPECT_EQ(Wait(pid), 0) << Said();
}

TEST_F(Process, TellsItsVersionWithoutAScreen) {
    const pid_t pid = Start({"--version", "-platform", "none-such"});
    EXPECT_EQ(Wait(pid), 0) << Said();
}

TEST_F(Process, LeavesTheFieldToTheInstanceThatIsThere) {
    Register("second", folder_ / "books");
    const pid_t first = Start({"/altdb=Second"});
    WaitForBooks(first);
    EXPECT_EQ(Wait(Start({})), 0);
    EXPECT_EQ(::kill(first, SIGTERM), 0);
    EXPECT_EQ(Wait(first), 0) << Said();
}

TEST_F(Process, RefusesACommandLineItCannotRead) {
    EXPECT_EQ(Wait(Start({"--today", "02/30/2024"})), 2);
    EXPECT_THAT(Said(), HasSubstr("'02/30/2024' is not a valid date"));
}

} // namespace
