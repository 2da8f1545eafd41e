#include "vestrelctl/Output.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>

#include "core/Globals.h"
#include "platform/values/Errors.h"

namespace vestrelctl {

namespace {

[[noreturn]] void ThrowLost() {
    throw platform::Error("the output can't be written");
}

/// Holds back what is printed until this object's lifetime ends.
class HeldOutput {
  public:
    HeldOutput() : usual_(std::cout.rdbuf(held_.rdbuf())) {}
    ~HeldOutput() { std::cout.rdbuf(usual_); }
    HeldOutput(const HeldOutput&) = delete;
    HeldOutput& operator=(const HeldOutput&) = delete;

    std::string Text() const { return held_.str(); }

  private:
    std::ostringstream held_;
    std::streambuf* usual_;
};

/// Writes past the stream, which would try again at the program's end to write what it couldn't.
bool Write(std::string_view text) {
    // Without a reader, the program would end here as if nothing had been booked.
    std::signal(SIGPIPE, SIG_IGN);
    while (!text.empty()) {
        const ssize_t written = write(STDOUT_FILENO, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::string BookedOutput(const std::function<void()>& work) {
    const HeldOutput held;
    platform::UnitOfWork unit(core::App().Connection);
    work();
    unit.Commit();
    return held.Text();
}

} // namespace

void CheckOutput() {
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    const bool answered = poll(&output, 1, 0) > 0;
    if (answered && (output.revents & (POLLERR | POLLNVAL)) != 0) ThrowLost();
    // Writing nothing fails only if writing something would fail.
    if (write(STDOUT_FILENO, "", 0) < 0) ThrowLost();
}

void FlushOutput() {
    if (!std::cout.flush()) ThrowLost();
}

void BookAndPrint(const std::function<void()>& work) {
    FlushOutput();
    CheckOutput();
    const std::string output = BookedOutput(work);
    if (!Write(output))
        std::cerr << "vestrelctl: booked, but the output can't be written: " << output;
}

} // namespace vestrelctl
