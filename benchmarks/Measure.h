#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
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

/// Runs `setUp` and then `work`, which returns its count of rows, in a process of their own, so
/// that the peak of memory is theirs; only `work` is timed. The peak counts both.
Cost InOwnProcess(const std::function<void()>& setUp, const std::function<double()>& work);

/// Does each work `rounds` times, in turn, so that a busy moment of the disk or the processor slows
/// all of them. Returns the quickest time of each, and the most memory that it took.
template <std::size_t kCount>
std::array<Cost, kCount> BestInTurn(int rounds,
                                    const std::array<std::function<Cost()>, kCount>& works) {
    std::array<Cost, kCount> best;
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < kCount; ++i) {
            Cost cost = works[i]();
            if (round > 0) {
                cost.seconds = std::min(cost.seconds, best[i].seconds);
                cost.peakMegabytes = std::max(cost.peakMegabytes, best[i].peakMegabytes);
            }
            best[i] = cost;
        }
    }
    return best;
}

/// Prints a measured ratio beside the limit it is held against; remembers whether all were kept.
void Report(std::string_view what, double measured, double limit, std::string_view unit = "times");

/// Returns what `run` returns; 1 with the reason on standard error if it throws.
int Guarded(const std::function<int()>& run) noexcept;

/// 0 when every reported limit was kept, otherwise 1.
int ExitStatus();

} // namespace bench
