#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <exception>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/Globals.h"
#include "platform/database/StatementProbe.h"
#include "platform/values/Errors.h"
#include "support/Dump.h"

namespace support {

/// A second program on the same books. It does its work, whole, just before this process next
/// writes: after whatever a routine has read and decided, and before its unit of work begins.
class Rival {
  public:
    explicit Rival(std::function<void()> work) {
        const std::string file = core::App().Connection.File();
        core::App().Connection.Close();
        if (pipe(start_.data()) != 0) throw platform::Error("no pipe");
        process_ = fork();
        if (process_ == 0) Live(file, work);
        close(start_[0]);
        core::App().Connection.Open(file);
        platform::SetStatementProbe([this] {
            if (!std::exchange(hasWorked_, true)) Work();
        });
    }
    ~Rival() {
        platform::SetStatementProbe({});
        close(start_[1]);
        if (!hasWorked_) waitpid(process_, nullptr, 0);
    }
    Rival(const Rival&) = delete;
    Rival& operator=(const Rival&) = delete;

    /// True once the other program has done its work without a failure.
    bool HasWorked() const { return hasWorked_ && status_ == 0; }
    /// Every row of the books as the other program left them.
    const std::vector<std::string>& BooksAfterwards() const { return books_; }

  private:
    [[noreturn]] void Live(const std::string& file, const std::function<void()>& work) {
        close(start_[1]);
        char sign = 0;
        if (read(start_[0], &sign, 1) != 1) _exit(1);
        try {
            core::App().Connection.Open(file);
            work();
            core::App().Connection.Close();
        } catch (const std::exception&) {
            _exit(1);
        }
        _exit(0);
    }

    void Work() {
        if (write(start_[1], "!", 1) != 1) return;
        waitpid(process_, &status_, 0);
        books_ = Dump();
    }

    std::array<int, 2> start_{};
    pid_t process_ = 0;
    int status_ = -1;
    bool hasWorked_ = false;
    std::vector<std::string> books_;
};

} // namespace support
