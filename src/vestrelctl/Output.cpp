#include "vestrelctl/Output.h"

#include <poll.h>
#include <unistd.h>

#include <iostream>

#include "core/Globals.h"
#include "platform/values/Errors.h"

namespace vestrelctl {

namespace {

[[noreturn]] void ThrowLost() {
    throw platform::Error("the output can't be written");
}

} // namespace

void CheckOutput() {
    pollfd output{STDOUT_FILENO, POLLOUT, 0};
    const bool answered = poll(&output, 1, 0) > 0;
    if (answered && (output.revents & (POLLERR | POLLNVAL)) != 0) ThrowLost();
    // Writing nothing fails only where writing something would.
    if (write(STDOUT_FILENO, "", 0) < 0) ThrowLost();
}

void FlushOutput() {
    if (!std::cout.flush()) ThrowLost();
}

void BookAndPrint(const std::function<void()>& work) {
    CheckOutput();
    platform::UnitOfWork unit(core::App().Connection);
    work();
    FlushOutput();
    unit.Commit();
}

} // namespace vestrelctl
