#include "OtherProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <exception>

namespace platform {

OtherProcess::OtherProcess(const std::function<void()>& work) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return;
    process_ = fork();
    if (process_ == 0) {
        close(ends[0]);
        char answer = 'y';
        try {
            work();
        } catch (const std::exception&) {
            answer = 'n';
        }
        if (write(ends[1], &answer, 1) != 1) _exit(1);
        while (true)
            pause();
    }
    close(ends[1]);
    char answer = 'n';
    didWork_ = read(ends[0], &answer, 1) == 1 && answer == 'y';
    close(ends[0]);
}

void OtherProcess::Kill() {
    if (process_ <= 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    process_ = 0;
}

} // namespace platform
