#pragma once

#include <functional>
#include <string_view>

namespace bench {

/// The cost of one piece of work.
struct Cost {
    double seconds = 0;
    /// Peak resident size of the process that did it.
    double peakMegabytes = 0;
    /// Rows the work was about, as it counted them itself.
    double rows = 0;
};

inline bool IsQuicker(const Cost& one, const Cost& other) {
    return one.seconds < other.seconds;
}

/// Runs `setUp` and then `work`, which returns its count of rows, in a process of their own, so
/// that the peak of memory is theirs; only `work` is timed. The peak counts both.
Cost InOwnProcess(const std::function<void()>& setUp, const std::function<double()>& work);

/// Prints a measured ratio beside the limit it is held against; remembers whether all were kept.
void Report(std::string_view what, double measured, double limit, std::string_view unit = "times");

/// Returns what `run` returns; 1 with the reason on standard error if it throws.
int Guarded(const std::function<int()>& run) noexcept;

/// 0 when every reported limit was kept, otherwise 1.
int ExitStatus();

} // namespace bench
