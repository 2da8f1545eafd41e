#include "Measure.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include <fmt/core.h>

namespace bench {

namespace {

bool allKept = true;

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

[[noreturn]] void RunChild(int output, const std::function<void()>& setUp,
                           const std::function<double()>& work) {
    try {
        setUp();
        Cost cost;
        const auto start = std::chrono::steady_clock::now();
        cost.rows = work();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        cost.seconds = took.count();
        cost.peakMegabytes = PeakMegabytes();
        const bool written = write(output, &cost, sizeof cost) == sizeof cost;
        _exit(written ? 0 : 1);
    } catch (const std::exception& error) {
        fmt::print(stderr, "{}\n", error.what());
        _exit(1);
    }
}

} // namespace

Cost InOwnProcess(const std::function<void()>& setUp, const std::function<double()>& work) {
    int ends[2];
    if (pipe(ends) != 0) std::abort();
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) RunChild(ends[1], setUp, work);
    close(ends[1]);
    Cost cost;
    const bool told = read(ends[0], &cost, sizeof cost) == sizeof cost;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (!told || status != 0) {
        fmt::print(stderr, "the measured process failed\n");
        std::exit(1);
    }
    return cost;
}

void Report(std::string_view what, double measured, double limit, std::string_view unit) {
    const bool kept = measured <= limit;
    allKept = allKept && kept;
    fmt::print("{:<52} {:>8.2f} {} (limit {:g}){}\n", what, measured, unit, limit,
               kept ? "" : "  MISSED");
    std::fflush(stdout);
}

int Guarded(const std::function<int()>& run) noexcept {
    try {
        return run();
    } catch (const std::exception& error) {
        std::fputs(error.what(), stderr);
        return 1;
    }
}

int ExitStatus() {
    return allKept ? 0 : 1;
}

} // namespace bench
